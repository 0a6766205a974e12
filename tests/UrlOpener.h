#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QStringList>
#include <QUrl>

namespace corvellane {

/// Stands in for the program that opens the addresses of one scheme, and records them.
class UrlOpener : public QObject {
    Q_OBJECT

public:
    explicit UrlOpener(QString scheme)
        : scheme_(std::move(scheme))
    {
        QDesktopServices::setUrlHandler(scheme_, this, "open");
    }
    ~UrlOpener() override { QDesktopServices::unsetUrlHandler(scheme_); }

    QStringList opened;

    Q_INVOKABLE void open(const QUrl& url) { opened.append(url.toString()); }

private:
    QString scheme_;
};

} // namespace corvellane

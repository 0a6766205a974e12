#include "platform/qt/QtPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QStringDecoder>

namespace corvellane {

void QtPasteboard::clearContents()
{
    QGuiApplication::clipboard()->clear();
}

bool QtPasteboard::setString(const std::string& text)
{
    QStringDecoder decoder(
        QStringDecoder::Utf8, QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    const QString characters = decoder(QByteArrayView(text));
    QGuiApplication::clipboard()->setText(characters);
    return true;
}

} // namespace corvellane

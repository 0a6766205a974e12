#include "platform/qt/Translations.h"

#include <QCoreApplication>
#include <QLocale>

namespace corvellane {

namespace {

QString nameOf(const QString& tag, const QLocale& language)
{
    switch (language.language()) {
    case QLocale::Chinese:
        return language.script() == QLocale::SimplifiedHanScript ? QStringLiteral("zh_CN") : QStringLiteral("zh_TW");
    case QLocale::NorwegianNynorsk:
        return QStringLiteral("nb");
    default:
        // "pt" alone is Portugal's here, Brazil's to QLocale.
        return tag.contains('-') || tag.contains('_') ? language.name() : QLocale::languageToCode(language.language());
    }
}

/// "de_AT" and "de".
QStringList widerAndWider(const QString& name)
{
    const QString language = name.section('_', 0, 0);
    return name == language ? QStringList{name} : QStringList{name, language};
}

} // namespace

Translations::Translations(const Files& files, const std::string& folder, const QStringList& languages)
{
    if (folder.empty()) {
        return;
    }
    for (const QString& tag : languages) {
        const QLocale language(tag);
        if (language.language() == QLocale::English || language.language() == QLocale::C) {
            return;
        }
        for (const QString& name : widerAndWider(nameOf(tag, language))) {
            if (reads(files, folder + "/installer_" + name.toStdString() + ".qm")) {
                QCoreApplication::installTranslator(&table_);
                return;
            }
        }
    }
}

bool Translations::reads(const Files& files, const std::string& path)
{
    constexpr std::size_t largest = 16 << 20;
    bytes_ = files.read(path, largest).value_or("");
    return table_.load(reinterpret_cast<const uchar*>(bytes_.data()), static_cast<int>(bytes_.size()));
}

} // namespace corvellane

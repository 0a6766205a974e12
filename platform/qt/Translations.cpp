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

} // namespace

Translations::Translations(const std::string& folder, const QStringList& languages)
{
    if (folder.empty()) {
        return; // Qt would look in the working directory
    }
    for (const QString& tag : languages) {
        const QLocale language(tag);
        if (language.language() == QLocale::English || language.language() == QLocale::C) {
            return;
        }
        // For "de_AT", Qt goes on to "de" by itself.
        if (table_.load(QStringLiteral("installer_") + nameOf(tag, language), QString::fromStdString(folder))) {
            QCoreApplication::installTranslator(&table_);
            return;
        }
    }
}

} // namespace corvellane

#include "platform/qt/Translations.h"

#include <QCoreApplication>

namespace corvellane {

namespace {

QString nameOf(const QLocale& language)
{
    switch (language.language()) {
    case QLocale::Chinese:
        return language.script() == QLocale::SimplifiedHanScript ? QStringLiteral("zh_CN") : QStringLiteral("zh_TW");
    case QLocale::NorwegianNynorsk:
        return QStringLiteral("nb");
    default:
        return language.name();
    }
}

} // namespace

Translations::Translations(const std::string& folder, const QLocale& locale)
{
    if (folder.empty()) {
        return; // Qt would look in the working directory
    }
    for (const QString& tag : locale.uiLanguages()) {
        const QLocale language(tag);
        if (language.language() == QLocale::English || language.language() == QLocale::C) {
            return;
        }
        // For "de_AT", Qt goes on to "de" by itself.
        if (table_.load(QStringLiteral("installer_") + nameOf(language), QString::fromStdString(folder))) {
            QCoreApplication::installTranslator(&table_);
            return;
        }
    }
}

} // namespace corvellane

#include "platform/qt/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace corvellane {

namespace {

QString nameOf(const QLocale& language)
{
    if (language.language() != QLocale::Chinese) {
        return QLocale::languageToCode(language.language());
    }
    const bool simplified = language.script() == QLocale::SimplifiedHanScript;
    return simplified ? QStringLiteral("zh_CN") : QStringLiteral("zh_TW");
}

} // namespace

Translations::Translations(const std::string& folder, const QLocale& locale)
{
    if (folder.empty()) {
        return; // Qt would look in the working directory
    }
    for (const QString& tag : locale.uiLanguages()) {
        const QLocale language(tag);
        if (language.language() == QLocale::English || language.language() == QLocale::C || !translators_.empty()) {
            return;
        }
        install(QStringLiteral("installer_") + nameOf(language), QString::fromStdString(folder));
        if (!translators_.empty()) {
            install(QStringLiteral("qtbase_") + nameOf(language), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        }
    }
}

void Translations::install(const QString& name, const QString& folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(name, folder)) {
        QCoreApplication::installTranslator(translator.get());
        translators_.push_back(std::move(translator));
    }
}

} // namespace corvellane

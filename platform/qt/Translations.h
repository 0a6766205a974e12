#pragma once

#include <QLocale>
#include <QTranslator>

#include <memory>
#include <string>
#include <vector>

namespace corvellane {

/// The tables of translated texts that lie in a folder as "installer_LANGUAGE.qm", LANGUAGE being "de" or "zh_CN", and
/// Qt's own for the same language. They hold for as long as this lives; a text is looked up in the context
/// "Installer" and stays as written without an entry. Main thread.
class Translations {
public:
    /// Installs the table of the first of the locale's languages that has one; none once English comes first, and none
    /// where the folder is empty.
    Translations(const std::string& folder, const QLocale& locale);

private:
    void install(const QString& name, const QString& folder);

    std::vector<std::unique_ptr<QTranslator>> translators_;
};

} // namespace corvellane

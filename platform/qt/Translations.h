#pragma once

#include "platform/Files.h"

#include <QStringList>
#include <QTranslator>

#include <string>

namespace corvellane {

/// The table of translated texts for a person's language, from a folder with tables "installer_LANGUAGE.qm", LANGUAGE
/// being "de", "pt_BR" or "zh_TW". A table holds the window's own texts, in the contexts "Installer" and "Menu", and
/// Qt's words that the window can show, with the direction that text runs in. It holds for as long as this lives; a
/// text without an entry stays as written. Main thread.
class Translations {
public:
    /// Installs the table of the first of the languages, as QLocale::uiLanguages() names them, that has one; none once
    /// English comes first, and none where the folder is empty. Whoever writes Norwegian of either kind gets "nb";
    /// Chinese goes by its script. The folder's name may be any bytes.
    Translations(const Files& files, const std::string& folder, const QStringList& languages);

private:
    bool reads(const Files& files, const std::string& path);

    /// What the table looks its texts up in.
    std::string bytes_;
    QTranslator table_;
};

} // namespace corvellane

#include "platform/qt/Translations.h"

#include "tests/ScratchFolder.h"
#include "tests/ui/WizardWorld.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTranslator>

#include <set>

namespace corvellane {
namespace {

class Translated : public WizardWorld {
protected:
    /// Every key that any page, alert or panel shows.
    std::set<std::string> keysShown()
    {
        std::set<std::string> keys{"Progress of the installation"};
        for (const bool raised : {false, true}) {
            raise(raised);
            for (const Page page : allPages) {
                settings->currentPage.set(page);
                collect(keys);
                settings->showPermanentlyAlert.set(false);
                collect(keys);
                settings->showPermanentlyAlert.set(raised);
            }
        }
        addProducts({"A"});
        settings->currentPage.set(Page::products);
        collect(keys);
        settings->showLicenseAlert.set(true);
        collect(keys);
        return keys;
    }

private:
    void raise(bool raised)
    {
        settings->showPermanentlyAlert.set(raised);
        settings->showFinderAlert.set(raised);
        settings->showLogDetailsWindow.set(raised);
        settings->completedWithErrors.set(raised);
    }

    void collect(std::set<std::string>& keys)
    {
        const View shown = body();
        for (const Text& text : allOf<Text>(shown)) {
            if (text.localizable && !text.text.empty()) {
                keys.insert(text.text);
            }
        }
        for (const Button& button : allOf<Button>(shown)) {
            keys.insert(button.label);
        }
    }
};

TEST_F(Translated, everyKeyOfTheWindowInEveryLanguageAndButtonsByTheirNames)
{
    const std::set<std::string> keys = keysShown();
    EXPECT_EQ(keys.size(), 21U);
    const std::vector<std::pair<const char*, const char*>> named{
        {"Click Agree to continue or click Disagree to cancel and quit the Installer.", "Agree"},
        {"Click Agree to continue or click Disagree to cancel and quit the Installer.", "Disagree"},
        {R"(Click "Install" button to complete the installation.)", "Install"},
    };
    const QStringList sources = QDir(TRANSLATION_SOURCES).entryList({"*.ts"});
    EXPECT_EQ(sources.size(), 5);
    for (const QString& name : sources) {
        const std::string source = readFile(TRANSLATION_SOURCES "/" + name.toStdString());
        EXPECT_EQ(source.find(" type="), source.npos) << "something unfinished in " << name.toStdString();
        const QString window = QString::fromStdString(source).section("</context>", 0, 0);
        EXPECT_EQ(window.count("<source>"), keys.size()) << name.toStdString();
        QTranslator table;
        ASSERT_TRUE(table.load(QFileInfo(name).baseName(), TRANSLATIONS)) << name.toStdString();
        for (const std::string& key : keys) {
            EXPECT_FALSE(table.translate("Installer", key.c_str()).isEmpty()) << name.toStdString() << ": " << key;
        }
        for (const auto& [message, button] : named) {
            EXPECT_TRUE(table.translate("Installer", message).contains(table.translate("Installer", button)))
                << name.toStdString() << ": " << button;
        }
    }
}

TEST(Translations, takesTheTableOfTheSystemsLanguage)
{
    struct Row {
        const char* locale;
        const char* next;
    };
    const std::vector<Row> rows{{"de_AT", "Weiter"}, {"fr_CA", "Suivant"}, {"es_MX", "Siguiente"}, {"ja_JP", "次へ"},
        {"zh_CN", "下一步"}, {"zh_SG", "下一步"}, {"zh_TW", "Next"}, {"en_GB", "Next"}, {"nl_NL", "Next"},
        {"C", "Next"}};
    for (const Row& row : rows) {
        const Translations translations(TRANSLATIONS, QLocale(QString::fromLatin1(row.locale)));
        EXPECT_EQ(QCoreApplication::translate("Installer", "Next").toStdString(), row.next) << row.locale;
        EXPECT_EQ(QCoreApplication::translate("Installer", "No entry"), QStringLiteral("No entry"));
    }
    EXPECT_EQ(QCoreApplication::translate("Installer", "Next"), QStringLiteral("Next"));
}

} // namespace
} // namespace corvellane

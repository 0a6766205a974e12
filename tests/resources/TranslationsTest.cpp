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
        for (Observable<bool>* const flag : {&settings->showLicenseAlert, &settings->showPermanentlyAlert,
                 &settings->showFinderAlert, &settings->showLogDetailsWindow, &settings->completedWithErrors}) {
            for (const bool raised : {true, false}) {
                flag->set(raised);
                for (const Page page : allPages) {
                    settings->currentPage.set(page);
                    collect(keys);
                }
            }
        }
        return keys;
    }

private:
    void collect(std::set<std::string>& keys)
    {
        for (const Text& text : allOf<Text>(body())) {
            if (text.localizable && !text.text.empty()) {
                keys.insert(text.text);
            }
            if (!text.remark.empty()) {
                keys.insert(text.remark);
            }
        }
        for (const Button& button : allOf<Button>(body())) {
            keys.insert(button.label);
        }
    }
};

TEST_F(Translated, everyKeyOfTheWindowInEveryLanguageAndButtonsByTheirNames)
{
    const std::set<std::string> keys = keysShown();
    EXPECT_EQ(keys.size(), 22U);
    const std::vector<std::pair<const char*, const char*>> named{
        {"Click Agree to continue or click Disagree to cancel and quit the Installer.", "Agree"},
        {"Click Agree to continue or click Disagree to cancel and quit the Installer.", "Disagree"},
        {R"(Click "Install" button to complete the installation.)", "Install"},
    };
    const QStringList sources = QDir(TRANSLATION_SOURCES).entryList({"*.ts"});
    EXPECT_EQ(sources.size(), 5);
    for (const QString& name : sources) {
        const QString source = QString::fromStdString(readFile(TRANSLATION_SOURCES "/" + name.toStdString()));
        EXPECT_FALSE(source.contains(" type=")) << "something unfinished in " << name.toStdString();
        EXPECT_EQ(source.section("</context>", 0, 0).count("<source>"), keys.size()) << name.toStdString();
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
    const std::vector<std::pair<const char*, const char*>> rows{{"de_AT", "Weiter"}, {"fr_CA", "Suivant"},
        {"es_MX", "Siguiente"}, {"ja_JP", "次へ"}, {"zh_CN", "下一步"}, {"zh_SG", "下一步"}, {"zh_TW", "Next"},
        {"en_GB", "Next"}, {"nl_NL", "Next"}, {"C", "Next"}};
    for (const auto& [locale, next] : rows) {
        const Translations translations(TRANSLATIONS, QLocale(QString::fromLatin1(locale)));
        EXPECT_EQ(QCoreApplication::translate("Installer", "Next").toStdString(), next) << locale;
    }
    QDir::setCurrent(TRANSLATIONS);
    const Translations nowhere("", QLocale(QLocale::German));
    EXPECT_EQ(QCoreApplication::translate("Installer", "Next"), QStringLiteral("Next"));
}

} // namespace
} // namespace corvellane

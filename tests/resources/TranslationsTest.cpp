#include "platform/qt/Translations.h"

#include "tests/ui/WizardWorld.h"

#include <QCoreApplication>
#include <QDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace corvellane {
namespace {

struct Entry {
    std::string text;
    bool finished = false;
};
using Table = std::map<std::string, Entry>;

/// What a file of Qt Linguist holds for the window.
Table tableOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&file);
    Table table;
    QString context;
    std::string source;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == QStringLiteral("name")) {
            context = reader.readElementText();
        } else if (reader.name() == QStringLiteral("source")) {
            source = reader.readElementText().toStdString();
        } else if (reader.name() == QStringLiteral("translation") && context == QStringLiteral("Installer")) {
            const bool finished = !reader.attributes().hasAttribute(QStringLiteral("type"));
            table[source] = {reader.readElementText().toStdString(), finished};
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return table;
}

std::vector<QString> tablePaths()
{
    const QDir folder(QStringLiteral(TRANSLATION_SOURCES));
    std::vector<QString> paths;
    for (const QString& name : folder.entryList({QStringLiteral("*.ts")})) {
        paths.push_back(folder.filePath(name));
    }
    return paths;
}

class Translated : public WizardWorld {
protected:
    /// Every key that any page, alert or panel shows.
    std::set<std::string> keysShown()
    {
        std::set<std::string> keys;
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

TEST_F(Translated, everyKeyOfTheWindowInEveryLanguage)
{
    const std::set<std::string> keys = keysShown();
    EXPECT_EQ(keys.size(), 20U);
    EXPECT_EQ(tablePaths().size(), 5U);
    for (const QString& path : tablePaths()) {
        std::set<std::string> translated;
        for (const auto& [source, entry] : tableOf(path)) {
            EXPECT_TRUE(entry.finished && !entry.text.empty()) << path.toStdString() << ": " << source;
            translated.insert(source);
        }
        EXPECT_EQ(translated, keys) << path.toStdString();
    }
}

TEST_F(Translated, messagesCallTheButtonsByTheirNames)
{
    const std::vector<std::pair<std::string, std::vector<std::string>>> rows{
        {"Click Agree to continue or click Disagree to cancel and quit the Installer.", {"Agree", "Disagree"}},
        {R"(Click "Install" button to complete the installation.)", {"Install"}},
    };
    for (const QString& path : tablePaths()) {
        Table table = tableOf(path);
        for (const auto& [message, buttons] : rows) {
            for (const std::string& button : buttons) {
                EXPECT_NE(table[message].text.find(table[button].text), std::string::npos)
                    << path.toStdString() << ": " << button;
            }
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

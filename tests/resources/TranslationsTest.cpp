#include "platform/qt/Translations.h"
#include "platform/posix/PosixFiles.h"
#include "tests/ScratchFolder.h"
#include "tests/ui/WizardWorld.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDir>
#include <QMenu>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTimer>
#include <QXmlStreamReader>

#include <algorithm>
#include <filesystem>
#include <map>
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

/// A table's texts and their translations, by context.
using Table = std::map<std::string, std::map<std::string, std::string>>;

Table readTable(const QString& name)
{
    Table table;
    QXmlStreamReader xml(QString::fromStdString(readFile(TRANSLATION_SOURCES "/" + name.toStdString())));
    std::string context;
    std::string source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement()) {
            continue;
        }
        if (xml.name() == u"name") {
            context = xml.readElementText().toStdString();
        } else if (xml.name() == u"source") {
            source = xml.readElementText().toStdString();
        } else if (xml.name() == u"translation") {
            EXPECT_TRUE(xml.attributes().isEmpty()) << "unfinished in " << name.toStdString() << ": " << source;
            table[context][source] = xml.readElementText().toStdString();
        }
    }
    EXPECT_FALSE(xml.hasError()) << name.toStdString();
    return table;
}

std::map<QString, Table> allTables()
{
    std::map<QString, Table> tables;
    for (const QString& name : QDir(TRANSLATION_SOURCES).entryList({"*.ts"})) {
        tables[name] = readTable(name);
    }
    return tables;
}

/// What a translated text keeps of its source: mnemonics, and the ends of the words in a list.
std::pair<qsizetype, qsizetype> marksOf(const std::string& text)
{
    return {std::ranges::count(text, '&'), std::ranges::count(text, ';')};
}

TEST_F(Translated, everyTextInEveryLanguageAndButtonsByTheirNames)
{
    const std::set<std::string> keys = keysShown();
    EXPECT_EQ(keys.size(), 22U);
    const std::vector<std::pair<const char*, const char*>> named{
        {"Click Agree to continue or click Disagree to cancel and quit the Installer.", "Agree"},
        {"Click Agree to continue or click Disagree to cancel and quit the Installer.", "Disagree"},
        {R"(Click "Install" button to complete the installation.)", "Install"},
    };
    const std::map<QString, Table> tables = allTables();
    EXPECT_GE(tables.size(), 38U);
    for (const auto& [name, table] : tables) {
        SCOPED_TRACE(name.toStdString());
        Table missing = tables.at("installer_de.ts");
        const std::map<std::string, std::string>& window = table.at("Installer");
        EXPECT_TRUE(std::ranges::equal(keys, window, {}, {}, &std::pair<const std::string, std::string>::first));
        for (const auto& [context, texts] : table) {
            for (const auto& [text, translation] : texts) {
                missing[context].erase(text);
                const QString shown = QString::fromStdString(translation);
                EXPECT_TRUE(!shown.isEmpty() && shown == shown.trimmed() && marksOf(text) == marksOf(translation))
                    << text;
            }
        }
        for (const auto& [context, texts] : missing) {
            EXPECT_TRUE(texts.empty()) << context << ": " << texts.begin()->first;
        }
        for (const auto& [message, button] : named) {
            EXPECT_THAT(window.at(message), testing::HasSubstr(window.at(button)));
        }
        const bool runsFromTheRight = QLocale(name.section('_', 1)).textDirection() == Qt::RightToLeft;
        EXPECT_EQ(table.contains("QGuiApplication"), runsFromTheRight);
    }
}

/// Remembers which texts Qt has asked for.
class AskedTexts : public QTranslator {
public:
    QString translate(const char* context, const char* text, const char* /*comment*/, int /*count*/) const override
    {
        asked.insert({context, text});
        return {};
    }
    bool isEmpty() const override { return false; }

    mutable std::set<std::pair<std::string, std::string>> asked;
};

TEST(Translations, holdQtsOwnWords)
{
    AskedTexts texts;
    QCoreApplication::installTranslator(&texts);
    QTextBrowser agreement;
    agreement.setHtml("<a href='x'>link</a>" + QString(5000, 'x').replace('x', "x<br>"));
    agreement.setLineWrapMode(QTextEdit::NoWrap);
    agreement.show();
    delete agreement.createStandardContextMenu({10, 10});
    for (QScrollBar* const bar : {agreement.horizontalScrollBar(), agreement.verticalScrollBar()}) {
        QTimer::singleShot(0, [] { QApplication::activePopupWidget()->close(); });
        QContextMenuEvent click(QContextMenuEvent::Mouse, {1, 1}, bar->mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(bar, &click);
    }
    const Table table = readTable("installer_ar.ts");
    EXPECT_GE(texts.asked.size(), 3U + 13U + 1U);
    for (const auto& [context, text] : texts.asked) {
        if (context != "QShortcut") {
            EXPECT_TRUE(table.contains(context) && table.at(context).contains(text)) << context << ": " << text;
        }
    }
}

TEST(Translations, takesTheTableOfTheSystemsLanguage)
{
    const std::vector<std::pair<const char*, const char*>> rows{{"de_AT", "Weiter"}, {"fr_CA", "Suivant"},
        {"es_MX", "Siguiente"}, {"ja_JP", "次へ"}, {"pt_PT", "Seguinte"}, {"pt_AO", "Seguinte"}, {"pt_BR", "Próximo"},
        {"nb_NO", "Neste"}, {"nn_NO", "Neste"}, {"no_NO", "Neste"}, {"he_IL", "הבא"}, {"iw_IL", "הבא"},
        {"zh_CN", "下一步"}, {"zh_SG", "下一步"}, {"zh_Hans_HK", "下一步"}, {"sr_RS", "Next"}, {"ca_ES", "Next"},
        {"en_GB", "Next"}, {"C", "Next"}};
    for (const auto& [locale, next] : rows) {
        const Translations translations(PosixFiles(), TRANSLATIONS, QLocale(QString::fromLatin1(locale)).uiLanguages());
        EXPECT_EQ(QCoreApplication::translate("Installer", "Next").toStdString(), next) << locale;
    }
    for (const char* const locale : {"zh_TW", "zh_HK", "zh_MO", "zh-Hant"}) {
        const Translations translations(PosixFiles(), TRANSLATIONS, QLocale(QString::fromLatin1(locale)).uiLanguages());
        EXPECT_EQ(QCoreApplication::translate("Installer", "Close").toStdString(), "關閉") << locale;
    }
    {
        const Translations afterCatalan(PosixFiles(), TRANSLATIONS, {"ca", "pt", "de"});
        EXPECT_EQ(QCoreApplication::translate("Installer", "Next"), QStringLiteral("Seguinte")) << "not Brazil's";
    }
    {
        const Translations arabic(PosixFiles(), TRANSLATIONS, {"ar"});
        EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    }
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    const ScratchFolder scratch;
    std::filesystem::create_symlink(TRANSLATIONS, scratch.path() + "/\xff");
    {
        const Translations german(PosixFiles(), scratch.path() + "/\xff", {"de"});
        EXPECT_EQ(QCoreApplication::translate("Installer", "Next"), QStringLiteral("Weiter"));
    }
    const Translations nowhere(PosixFiles(), "", {"de"});
    EXPECT_EQ(QCoreApplication::translate("Installer", "Next"), QStringLiteral("Next"));
}

} // namespace
} // namespace corvellane

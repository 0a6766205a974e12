#include "tools/AgreementReport.h"

#include "agreement/Document.h"
#include "rtf/Blocks.h"
#include "tools/AgreementJson.h"

#include <string_view>

namespace corvellane {
namespace {

void appendRows(std::string& plain, const rtf::AttributedText& text, const rtf::Block& table);

/// What stands in a cell, which ends with its last paragraph or with a line of the table that is its last.
void appendCell(std::string& plain, const rtf::AttributedText& text, const rtf::TableCell& cell)
{
    for (const rtf::Block& block : cell.blocks) {
        if (!block.rows.empty()) {
            appendRows(plain, text, block);
            continue;
        }
        plain += std::string_view(text.text).substr(block.paragraph.begin, block.paragraph.end - block.paragraph.begin);
        plain += &block != &cell.blocks.back() ? "\u2028" : "";
    }
}

void appendRows(std::string& plain, const rtf::AttributedText& text, const rtf::Block& table)
{
    for (const rtf::TableRow& row : table.rows) {
        for (const rtf::TableCell& cell : row.cells) {
            appendCell(plain, text, cell);
            if (cell.blocks.back().rows.empty()) {
                plain += &cell != &row.cells.back() ? '\t' : '\n';
            }
        }
    }
}

} // namespace

std::string agreementPlainText(const rtf::AttributedText& text)
{
    std::string plain;
    for (const rtf::Block& block : rtf::blocksOf(text)) {
        if (!block.rows.empty()) {
            appendRows(plain, text, block);
            continue;
        }
        plain += std::string_view(text.text).substr(block.paragraph.begin, block.paragraph.end - block.paragraph.begin);
        plain += '\n';
    }
    return plain;
}

Expected<std::string> agreementReport(const Files& files, const std::string& path, AgreementForm form)
{
    return readAgreement(files, path).map(form == AgreementForm::json ? agreementJson : agreementPlainText);
}

} // namespace corvellane

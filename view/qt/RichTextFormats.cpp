#include "view/qt/RichTextFormats.h"

#include "view/qt/Appearance.h"
#include "view/qt/FontSubstitutes.h"
#include "view/qt/RichTextLines.h"

#include <QFontMetricsF>

#include <algorithm>

namespace corvellane::view {
namespace {

const QColor linkColor(0, 0, 238);

QFont::Capitalization capitalizationOf(rtf::Capitals capitals)
{
    switch (capitals) {
    case rtf::Capitals::small:
        return QFont::SmallCaps;
    case rtf::Capitals::all:
        return QFont::AllUppercase;
    case rtf::Capitals::asTyped:
        break;
    }
    return QFont::MixedCase;
}

QFont fontFor(const rtf::TextAttributes& attributes, const rtf::AttributedText& text)
{
    QFont font(substitutesFor(text.families[attributes.family]));
    font.setPixelSize(std::max(1, qRound(attributes.size / 2.0 * textScale())));
    font.setBold(attributes.bold);
    font.setItalic(attributes.italic);
    if (attributes.letterSpacing != 0) {
        font.setLetterSpacing(QFont::AbsoluteSpacing, rtf::points(attributes.letterSpacing) * textScale());
    }
    font.setStrikeOut(attributes.strike);
    font.setCapitalization(capitalizationOf(attributes.capitals));
    return font;
}

/// Of two lines Qt draws the first one, and a thick one thin.
QTextCharFormat::UnderlineStyle styleOf(rtf::Underline underline)
{
    switch (underline) {
    case rtf::Underline::none:
        return QTextCharFormat::NoUnderline;
    case rtf::Underline::solid:
    case rtf::Underline::twofold:
    case rtf::Underline::thick:
    case rtf::Underline::words:
        return QTextCharFormat::SingleUnderline;
    case rtf::Underline::dotted:
        return QTextCharFormat::DotLine;
    case rtf::Underline::dashed:
        return QTextCharFormat::DashUnderline;
    case rtf::Underline::dashDotted:
        return QTextCharFormat::DashDotLine;
    case rtf::Underline::dashDotDotted:
        return QTextCharFormat::DashDotDotLine;
    case rtf::Underline::waved:
        return QTextCharFormat::WaveUnderline;
    }
    return QTextCharFormat::NoUnderline;
}

QTextCharFormat::VerticalAlignment verticalAlignmentOf(rtf::VerticalPosition position)
{
    switch (position) {
    case rtf::VerticalPosition::superscript:
        return QTextCharFormat::AlignSuperScript;
    case rtf::VerticalPosition::subscript:
        return QTextCharFormat::AlignSubScript;
    case rtf::VerticalPosition::normal:
        break;
    }
    return QTextCharFormat::AlignNormal;
}

void setColors(QTextCharFormat& format, const rtf::TextAttributes& attributes)
{
    if (attributes.link != 0) {
        format.setForeground(linkColor);
    } else if (attributes.color.isSet) {
        format.setForeground(colorOf(attributes.color));
    }
    if (attributes.background.isSet) {
        format.setBackground(colorOf(attributes.background));
    }
}

/// What is raised or lowered has to do with the line that Qt draws.
void addOwnLines(QTextCharFormat& format, const rtf::TextAttributes& attributes)
{
    const bool isRaised = attributes.script != rtf::VerticalPosition::normal || attributes.baselineOffset != 0;
    if (attributes.underline == rtf::Underline::twofold && !isRaised) {
        addSecondUnderline(format);
    } else if (attributes.underline == rtf::Underline::thick && !isRaised) {
        thickenUnderline(format);
    }
    if (attributes.frame.style != rtf::LineStyle::none) {
        addFrame(format, attributes.frame);
    }
}

} // namespace

QColor colorOf(const rtf::Color& color)
{
    return {color.red, color.green, color.blue};
}

QTextCharFormat charFormatFor(const rtf::TextAttributes& attributes, const rtf::AttributedText& text)
{
    QTextCharFormat format;
    const QFont font = fontFor(attributes, text);
    format.setFont(font);
    format.setUnderlineStyle(attributes.link != 0 ? QTextCharFormat::SingleUnderline : styleOf(attributes.underline));
    format.setVerticalAlignment(verticalAlignmentOf(attributes.script));
    if (attributes.baselineOffset != 0) {
        format.setBaselineOffset(100 * (attributes.baselineOffset / 2.0) / QFontMetricsF(font).height());
    }
    setColors(format, attributes);
    addOwnLines(format, attributes);
    if (attributes.link != 0) {
        format.setAnchor(true);
        format.setAnchorHref(QString::fromStdString(text.links[attributes.link - 1]));
    }
    return format;
}

} // namespace corvellane::view

#pragma once

#include <string_view>

namespace corvellane::rtf {

/// In place of what a symbol font has no character for.
constexpr char32_t replacementOfSymbols = U'\uFFFD';

/// The characters of the Symbol font from 0x20 on (after Unicode's mapping table of the Adobe Symbol encoding).
constexpr std::u32string_view symbolCharacters =
    // clang-format off
    U" !∀#∃%&∍()∗+,−./"
    U"0123456789:;<=>?"
    U"≅ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟ"
    U"ΠΘΡΣΤΥςΩΞΨΖ[∴]⊥_"
    U"‾αβχδεφγηιϕκλμνο"
    U"πθρστυϖωξψζ{|}∼\uFFFD"
    U"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"
    U"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"
    U"€ϒ′≤⁄∞ƒ♣♦♥♠↔←↑→↓"
    U"°±″≥×∝∂•÷≠≡≈…⏐⎯↵"
    U"ℵℑℜ℘⊗⊕∅∩∪⊃⊇⊄⊂⊆∈∉"
    U"∠∇®©™∏√⋅¬∧∨⇔⇐⇑⇒⇓"
    U"⋄⟨®©™∑⎛⎜⎝⎡⎢⎣⎧⎨⎩⎪"
    U"\uFFFD⟩∫⌠⎮⌡⎞⎟⎠⎤⎥⎦⎫⎬⎭\uFFFD";
// clang-format on

/// The characters of the Wingdings font from 0x20 on. Where fonts lack the exact character, a common one of the same
/// look and sense stands for it.
constexpr std::u32string_view wingdingsCharacters =
    // clang-format off
    U" ✏✂✁👓🔔📖🕯☎✆✉🖃📪📫📬📭"
    U"📁📂📄🗏🗐🗄⌛🖮🖰🖲🖳🖴🖫🖬✇✍"
    U"🖎✌👌👍👎☜☞☝☟🖐☺😐☹💣☠⚐"
    U"🏱✈☼💧❄🕆✞🕈✠✡☪☯ॐ☸♈♉"
    U"♊♋♌♍♎♏♐♑♒♓🙰🙵●❍■□"
    U"⬜❑❒⬧⧫◆❖⬥⌧⍓⌘❀✿❝❞\uFFFD"
    U"⓪①②③④⑤⑥⑦⑧⑨⑩⓿❶❷❸❹"
    U"❺❻❼❽❾❿🙢🙠🙡🙣🙞🙜🙝🙟·•"
    U"▪○⭕◎◉◎🔿▪◻▲✦★✶✴✹✵"
    U"⌖⌖⟡⌑\uFFFD✪✰🕐🕑🕒🕓🕔🕕🕖🕗🕘"
    U"🕙🕚🕛⮰⮱⮲⮳⮴⮵⮶⮷🙪🙫🙕🙔🙗"
    U"🙖🙐🙑🙒🙓⌫⌦⮘➢⮙⮛⮈➲⮉⮋←"
    U"→↑↓↖↗↙↘🡸➔🡹🡻🡼🡽🡿🡾⇦"
    U"⇨⇧⇩⬄⇳⬀⬁⬃⬂▭▫✗✓☒☑\uFFFD";
// clang-format on

static_assert(symbolCharacters.size() == 0x100 - 0x20 && wingdingsCharacters.size() == 0x100 - 0x20);

} // namespace corvellane::rtf

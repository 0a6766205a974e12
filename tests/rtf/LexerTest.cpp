#include "rtf/Lexer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace corvellane::rtf {
namespace {

/// By the kinds in their order.
constexpr std::array beforeText = {"end", "{", "}", "\\", "run", "\\", "hex ", "bytes "};

std::string printed(const Token& token)
{
    const bool isAscii = token.kind == Token::Kind::text && token.ascii;
    std::string result = isAscii ? "ascii " : beforeText.at(static_cast<std::size_t>(token.kind));
    if (token.kind != Token::Kind::open && token.kind != Token::Kind::close) {
        result += token.text == "\n" ? "end-of-line" : token.text;
    }
    return token.kind == Token::Kind::word && token.hasParameter ? result + "=" + std::to_string(token.parameter)
                                                                 : result;
}

/// What stands before the brace that ends the RTF.
std::string tokens(const std::string& rtf)
{
    const std::string group = rtf + '}';
    Lexer lexer(group);
    std::string all;
    for (const Token* token = &lexer.next(); token->kind != Token::Kind::end; token = &lexer.next()) {
        const auto words = token->kind == Token::Kind::run ? lexer.run() : std::vector{*token};
        std::ranges::for_each(words, [&](const Token& each) { all.append("|").append(printed(each)); });
    }
    all.resize(all.ends_with("|}") ? all.size() - 2 : all.size());
    return all.substr(all.empty() ? 0 : 1);
}

TEST(Lexer, cutsRtfIntoTokens)
{
    const std::vector<std::pair<std::string, std::string>> rows = {
        {"", ""},
        {"\\b bold", "\\b|ascii bold"},
        {"\\b  bold", "\\b|ascii  bold"},
        {"\\b\nbold", "\\b|ascii bold"},
        {"\\b0bold", "\\b=0|ascii bold"},
        {"\\b-1 bold", "\\b=-1|ascii bold"},
        {"\\b- x", "\\b|ascii - x"},
        {"\\b--1", "\\b|ascii --1"},
        {"\\fs24\\b", "\\fs=24|\\b"},
        {"\\PAR", "\\PAR"},
        {"\\fs-", "\\fs|ascii -"},
        {"\\'e9\\'E9", "hex \xE9\xE9"},
        {"\\'e9\\'E\\'e9\\b", "hex \xE9|hex \xE9|\\b"},
        {"\\'e9\\'", "hex \xE9"},
        {"\\'", ""},
        {"\\'4g", "ascii g"},
        {"\\'zz", "ascii zz"},
        {"\\~\\*\\\\\\{", "\\~|\\*|\\\\|\\{"},
        {"\\\n\\\r\\\r\n.", "\\end-of-line|\\end-of-line|\\end-of-line|ascii ."},
        {"\\\r\r\n\\\n\n.", "\\end-of-line|\\end-of-line|ascii ."},
        {"\\", "\\}"},
        {"a}b", "ascii a|}|ascii b"},
        {"a\tb\xE9 c", "bytes a\tb\xE9 c"},
        {"a\nb\r\nc", "ascii a|ascii b|ascii c"},
        {"\x01 ~\x7F\x1F[|]\x80\xFF\x02", "ascii  ~\x7F|bytes [|]\x80\xFF"},
        {"\\bin3 {}\\x", "\\bin=3|ascii x"},
        {"\\bin-3 {", "\\bin=-3|{"},
        {"\\bin {", "\\bin|{"},
        {"\\bin2147483647 {{{", "\\bin=2147483647"},
        {"\\binary5 {", "\\binary=5|{"},
        {"\\li2147483648", "\\li=-2147483648"},
        {"\\li-2147483649", "\\li=2147483647"},
        {"\\li-4294967297", "\\li=-1"},
        {"\\li18446744073709551617", "\\li=1"},
        {"\\li99999999999999999999999999999999999999", "\\li=-1"},
    };
    for (const auto& [rtf, expected] : rows) {
        EXPECT_EQ(tokens(rtf), expected) << rtf;
    }
    std::string many;
    for (int count = 0; count < 300; ++count) {
        many += "\\'41";
    }
    EXPECT_EQ(tokens(many), "hex " + std::string(256, 'A') + "|hex " + std::string(44, 'A'));
}

TEST(Lexer, cutsARunThatItKnowsAsTheFirstTime)
{
    const std::vector<std::string> ends = {"", " ", "  ", "0", "0 ", "-", "-1", "-x", "\n", "\n1", "\n-1", "e", "\\i",
        "\\i ", "{", "\xE9", "\\'e9", "\\~", "\\bin2 \\i", "\\pard", "\\cellx5", "\\tx5\\tx", "\t"};
    for (const std::string begin : {"\\pard", "\\trowd\\b", "\\pard\\b\n\\i0\r\n\\b"}) {
        for (const std::string& first : ends) {
            for (const std::string& second : ends) {
                const std::string before = tokens(begin + first);
                EXPECT_EQ(tokens(begin + first + "{" + begin + second), before + "|{|" + tokens(begin + second));
            }
        }
    }
    std::string differing;
    std::string cut;
    for (std::size_t number = 0; number < 40; ++number) {
        differing += "\\pard" + std::string(number, '\n') + "\\tx" + std::to_string(number) + "{";
        cut += "|\\pard|\\tx=" + std::to_string(number) + "|{";
    }
    EXPECT_EQ("|" + tokens(differing + differing), cut + cut);
    EXPECT_EQ(tokens("\\pard" + std::string(1000, '\n') + "\\" + std::string(9999, 'b')),
        "\\pard|\\" + std::string(9999, 'b'));
}

TEST(Lexer, tellsATrailByteFromAControl)
{
    const std::vector<std::pair<std::string, int>> rows = {
        {"a", -1},
        {"{b", '{'},
        {"}", '}'},
        {"\\par", '\\'},
        {"", '}'},
        {"\\", '\\'},
        {"\\'a0", -1},
        {"\\\\text", -1},
        {"\\\\par", '\\'},
        {"\\\\'a0", '\\'},
        {"\\\\'no", -1},
        {"\\\\", -1},
        {"\\}", '\\'},
    };
    for (const auto& [rest, expected] : rows) {
        EXPECT_EQ(Lexer(rest + '}').peekTrailByte(), expected) << rest;
    }
}

} // namespace
} // namespace corvellane::rtf

#include "helper/InstallCommand.h"

#include <algorithm>
#include <array>
#include <utility>

namespace corvellane::runner {
namespace {

/// Takes a command apart from its front.
class Reader {
public:
    explicit Reader(std::string_view text)
        : rest_(text)
    {
    }

    bool isAtEnd() const { return rest_.empty(); }

    bool take(std::string_view words)
    {
        const bool isThere = rest_.starts_with(words);
        rest_.remove_prefix(isThere ? words.size() : 0);
        return isThere;
    }

    /// What stands in double quotes; absent when that is not quoted as it must be.
    std::optional<std::string> takeQuoted()
    {
        if (!take("\"")) {
            return std::nullopt;
        }
        std::string text;
        while (!rest_.empty() && rest_.front() != '"') {
            const bool isEscaped = take("\\");
            if (rest_.empty() || needsEscape(rest_.front()) != isEscaped) {
                return std::nullopt;
            }
            text += rest_.front();
            rest_.remove_prefix(1);
        }
        return take("\"") ? std::optional(std::move(text)) : std::nullopt;
    }

private:
    static bool needsEscape(char character)
    {
        return std::string_view("\\\"$`").find(character) != std::string_view::npos;
    }

    std::string_view rest_;
};

/// Takes a number of up to three octal digits off the front.
char takeOctal(std::string_view& rest)
{
    unsigned value = 0;
    for (int digits = 0; digits < 3 && !rest.empty() && rest.front() >= '0' && rest.front() <= '7'; ++digits) {
        value = value * 8 + static_cast<unsigned>(rest.front() - '0');
        rest.remove_prefix(1);
    }
    return static_cast<char>(value);
}

/// Takes what follows a backslash off the front, and gives the character that the two are; a backslash when they are
/// none.
char takeEscape(std::string_view& rest)
{
    constexpr std::string_view letters = "\\abfnrtv";
    constexpr std::string_view meanings = "\\\a\b\f\n\r\t\v";
    const auto letter = rest.empty() ? std::string_view::npos : letters.find(rest.front());
    if (letter != std::string_view::npos) {
        rest.remove_prefix(1);
        return meanings[letter];
    }
    if (rest.empty() || rest.front() < '0' || rest.front() > '7') {
        return '\\';
    }
    rest.remove_prefix(rest.starts_with('0') && rest.size() > 1 ? 1 : 0);
    return takeOctal(rest);
}

std::string echoed(std::string_view rest)
{
    std::string text;
    while (!rest.empty()) {
        const char next = rest.front();
        rest.remove_prefix(1);
        if (next == '\\' && rest.starts_with('c')) {
            return text;
        }
        text += next == '\\' ? takeEscape(rest) : next;
    }
    return text + '\n';
}

template <typename Form>
std::optional<InstallCommand> readOne(Reader& reader)
{
    auto path = reader.takeQuoted();
    return path ? std::optional<InstallCommand>(Form{*std::move(path)}) : std::nullopt;
}

template <typename Form>
std::optional<InstallCommand> readTwo(Reader& reader)
{
    auto first = reader.takeQuoted();
    auto second = first && reader.take(" ") ? reader.takeQuoted() : std::nullopt;
    return second ? std::optional<InstallCommand>(Form{*std::move(first), *std::move(second)}) : std::nullopt;
}

std::optional<InstallCommand> readText(Reader& reader)
{
    const auto text = reader.takeQuoted();
    auto path = text && reader.take(" > ") ? reader.takeQuoted() : std::nullopt;
    return path ? std::optional<InstallCommand>(WriteText{echoed(*text), *std::move(path)}) : std::nullopt;
}

std::optional<InstallCommand> readUnlink(Reader& reader)
{
    auto link = reader.takeQuoted();
    auto target = link && reader.take(")\" != ") ? reader.takeQuoted() : std::nullopt;
    const auto again = target && reader.take(" ] || rm -f ") ? reader.takeQuoted() : std::nullopt;
    return again && *again == *link ? std::optional<InstallCommand>(Unlink{*std::move(link), *std::move(target)})
                                    : std::nullopt;
}

struct Form {
    std::string_view words;
    std::optional<InstallCommand> (*readRest)(Reader& reader);
};

constexpr std::array forms{
    Form{"mkdir -p ", &readOne<MakeFolder>},
    Form{"cp -R -f ", &readTwo<Copy>},
    Form{"rm -R -f ", &readOne<Remove>},
    Form{"ln -f -h -s ", &readTwo<Link>},
    Form{"echo ", &readText},
    Form{"chown -R $USER ", &readOne<HandOver>},
    Form{"[ \"$(readlink -n ", &readUnlink},
    Form{"rmdir -p ", &readOne<RemoveFolders>},
};

} // namespace

std::optional<InstallCommand> parseCommand(std::string_view text)
{
    Reader reader(text);
    const auto* const form = std::ranges::find_if(forms, [&](const Form& each) { return reader.take(each.words); });
    auto command = form == forms.end() ? std::nullopt : form->readRest(reader);
    return reader.isAtEnd() ? std::move(command) : std::nullopt;
}

} // namespace corvellane::runner

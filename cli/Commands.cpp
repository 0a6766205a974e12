#include "cli/Commands.h"

#include "base/PathNames.h"
#include "cli/Advice.h"
#include "cli/Removal.h"
#include "helper/Turn.h"
#include "install/InstallScript.h"

#include <algorithm>
#include <utility>

namespace corvellane {
namespace {

Answer answerTo(const char* command, const Order& order)
{
    Answer answer{.command = command, .changed = false};
    for (const Person& person : order.persons) {
        answer.users.push_back(person.account.name);
    }
    return answer;
}

/// Several scripts of root's belong together; each of them waits for the others', whoever has them run.
void waitForOthers()
{
    if (hasRootRights()) {
        runner::waitForTurn("corvellane-cli");
    }
}

/// Has an answer filled in from what carrying the order out makes; nothing can be said without knowing that.
template <typename Fill>
Answer answerFrom(const char* command, const Order& order, Fill fill)
{
    Answer answer = answerTo(command, order);
    if (const auto installation = whatIsMade(order)) {
        fill(answer, *installation);
    } else {
        answer.status = Status::failed;
        answer.message = withAdvice(installation.error().message);
    }
    return answer;
}

/// Runs a script for each person, until one fails; an empty one is passed over.
template <typename Compose>
void runForEach(Answer& answer, const Order& order, const std::string& word, Compose compose)
{
    for (std::size_t index = 0; index < order.persons.size() && answer.status == Status::done; ++index) {
        const std::string script = compose(index);
        if (!script.empty()) {
            System system(order.persons[index].account, script::PasswordAsked::onTerminalToo);
            Ending ending = runScript(system, script, word);
            answer.status = ending.status;
            answer.message = ending.message.empty() || order.persons.size() == 1
                ? std::move(ending.message)
                : "For the user " + order.persons[index].account.name + ": " + ending.message;
            answer.changed = answer.changed.value_or(false) || ending.hasBegun;
        }
    }
}

/// Installs the elements of the order after what is in their way has gone.
void installAfter(Answer& answer, const Order& order, const Removal& clearance)
{
    runForEach(answer, order, "Installing", [&](std::size_t index) {
        ScriptText script;
        appendRemoval(script, partFor(clearance, order.persons, index));
        const auto elements = elementsFor(order, index);
        appendInstallation(script, order.persons[index].hosts, elements, LinkFolders::ofEachKind);
        return index == 0 || !elements.empty() ? std::move(script).finish() : "";
    });
    if (answer.status != Status::done) {
        answer.elements.clear();
    }
}

Answer installAll(const Order& order)
{
    Answer answer = answerTo("install", order);
    for (const std::string& element : order.elements) {
        answer.elements.push_back({element, "installed"});
    }
    installAfter(answer, order, {});
    return answer;
}

/// Says so when an element is still not as shipped.
void checkAgain(Answer& answer, const std::vector<const MadeElement*>& installed)
{
    for (auto element = installed.begin(); element != installed.end() && answer.status == Status::done; ++element) {
        const auto comparison = compare(**element);
        if (comparison.state != ElementState::asShipped) {
            const Difference first = comparison.differences.empty() ? Difference{(*element)->copy, "is missing"}
                                                                    : comparison.differences.front();
            answer.status = Status::failed;
            answer.message = "“" + first.path + "” " + first.text
                + ", also after it has been installed anew; look at what keeps changing it.";
        }
    }
}

void installWhatIsNeeded(Answer& answer, const Order& order, const Installation& installation)
{
    Order needed{order.productsFolder, {}, order.persons};
    std::vector<const MadeElement*> installed;
    Removal clearance;
    for (const MadeElement& element : installation.elements) {
        const auto comparison = compare(element);
        const bool isNeeded = comparison.state != ElementState::asShipped;
        answer.elements.push_back({element.path, isNeeded ? "installed" : "as shipped"});
        if (isNeeded) {
            needed.elements.push_back(element.path);
            installed.push_back(&element);
            std::ranges::move(clearanceFor(element, comparison).entries, std::back_inserter(clearance.entries));
        }
    }
    if (!installed.empty()) {
        installAfter(answer, needed, clearance);
        checkAgain(answer, installed);
    }
}

void removeAll(Answer& answer, const Order& order, const Installation& installation)
{
    Removal removal = removalOf(installation);
    for (const MadeElement& element : installation.elements) {
        answer.elements.push_back({element.path, isAnyThere(element) ? "removed" : "absent"});
    }
    runForEach(answer, order, "Removing", [&](std::size_t index) {
        const Removal part = partFor(removal, order.persons, index);
        ScriptText script;
        appendRemoval(script, part);
        return part.isEmpty() ? "" : std::move(script).finish();
    });
    if (answer.status != Status::done) {
        answer.elements.clear();
    }
    answer.kept = std::move(removal.kept);
}

} // namespace

Answer list(const Order& order)
{
    Answer answer{.command = "list"};
    for (const std::string& element : order.elements) {
        answer.elements.push_back({element, ""});
    }
    return answer;
}

Answer verify(const Order& order)
{
    Answer answer = answerFrom("verify", order, [](Answer& filled, const Installation& installation) {
        for (const MadeElement& element : installation.elements) {
            auto [state, differences] = compare(element);
            if (state != ElementState::asShipped) {
                filled.status = Status::failed;
                filled.message = "Not everything is as shipped; “install --accept-license --if-needed” mends it.";
            }
            filled.elements.push_back({element.path, std::string(nameOf(state)), std::move(differences)});
        }
    });
    answer.changed.reset();
    return answer;
}

Answer install(const Order& order, bool onlyIfNeeded)
{
    waitForOthers();
    if (!onlyIfNeeded) {
        return installAll(order);
    }
    return answerFrom(
        "install", order, [&](Answer& answer, const Installation& made) { installWhatIsNeeded(answer, order, made); });
}

Answer remove(const Order& order)
{
    waitForOthers();
    return answerFrom(
        "remove", order, [&](Answer& answer, const Installation& made) { removeAll(answer, order, made); });
}

} // namespace corvellane

#include "cli/ScriptRun.h"

#include "base/WorkerThread.h"
#include "cli/Advice.h"
#include "install/ScriptOutcome.h"
#include "platform/posix/StreamConsole.h"
#include "platform/script/ErrorInformation.h"

#include <chrono>
#include <cstdio>
#include <future>
#include <utility>

namespace corvellane {
namespace {

/// Remembers whether rights were to be had: a script's result gives words only.
class WatchedPrompt : public script::AdministratorPrompt {
public:
    explicit WatchedPrompt(std::shared_ptr<AdministratorPrompt> prompt)
        : prompt_(std::move(prompt))
    {
    }

    Expected<std::shared_ptr<script::Shell>> authorize(const std::vector<std::string>& commands) override
    {
        auto shell = prompt_->authorize(commands);
        isGranted_ = shell.has_value();
        isRefused_ = !shell && shell.error().number != script::error_number::eventFailed;
        return shell;
    }

    bool isGranted() const { return isGranted_; }
    bool isRefused() const { return isRefused_; }

private:
    std::shared_ptr<AdministratorPrompt> prompt_;
    bool isGranted_ = false;
    bool isRefused_ = false;
};

Ending endingOf(const ScriptExecution& execution, const WatchedPrompt& prompt)
{
    const auto text = resultText(execution);
    if (!text) {
        return {Status::failed, withAdvice(execution.errorDescription.value_or("The script gave no result.")),
            prompt.isGranted()};
    }
    switch (outcomeOf(*text)) {
    case ScriptOutcome::succeeded:
        return {Status::done, {}, true};
    case ScriptOutcome::canceled:
        return {Status::notAuthorized, "It was declined; nothing has been changed."};
    case ScriptOutcome::failed:
        break;
    }
    if (prompt.isRefused()) {
        return {Status::notAuthorized, *text};
    }
    return {Status::failed, withAdvice(*text), prompt.isGranted()};
}

/// Shows how far a script has come, until it has ended.
void showProgress(const std::future<ScriptExecution>& execution, WorkMeter& meter, const std::string& word)
{
    constexpr auto pause = std::chrono::milliseconds(200);
    const bool isShown = isTerminal(stderr);
    while (execution.wait_for(pause) != std::future_status::ready) {
        // A password may still be asked for on the same terminal before something is done.
        const double part = isShown ? meter.partDone().value_or(0) : 0;
        if (part > 0) {
            std::fprintf(stderr, "\r%s … %3d %%", word.c_str(), static_cast<int>(part * 100));
        }
    }
    if (isShown) {
        std::fputs("\r\x1b[K", stderr);
    }
}

} // namespace

Ending runScript(System& system, const std::string& script, const std::string& word)
{
    const auto prompt = std::make_shared<WatchedPrompt>(system.prompt);
    system.prompt = prompt;
    const auto compiled = system.platform().scripts.create(script);
    std::promise<ScriptExecution> result;
    auto execution = result.get_future();
    WorkerThread background;
    background.submit([&] { result.set_value(compiled->execute()); });
    showProgress(execution, *system.meter, word);
    return endingOf(execution.get(), *prompt);
}

} // namespace corvellane

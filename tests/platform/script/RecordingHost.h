#pragma once

#include "platform/Progress.h"
#include "platform/script/FileManager.h"
#include "platform/script/Interpreter.h"
#include "platform/script/Shell.h"
#include "tests/FakePlatform.h"

#include <map>
#include <string>
#include <vector>

namespace corvellane::script {

/// What scripts run against in tests: what happens is recorded, and no command is run.
class RecordingHost : AdministratorPrompt, FileManager, Progress {
public:
    /// Outlived by this.
    Host host()
    {
        const std::shared_ptr<void> nobody;
        return {{nobody, &shell_}, {nobody, this}, {nobody, this}, {nobody, &folders_}, {nobody, this}};
    }

    /// A command that is not here succeeds and prints nothing.
    std::map<std::string, CommandResult> results;
    /// Commands, those with administrator rights after "sudo "; "prompt"; "begin TEXT; TEXT;", "start INDEX", "end".
    std::vector<std::string> journal;
    bool declines = false;
    bool fileManagerAnswers = true;

private:
    struct RecordingShell : Shell {
        RecordingShell(RecordingHost& owner, std::string mark)
            : recorder(owner)
            , prefix(std::move(mark))
        {
        }
        Expected<CommandResult> run(const std::string& command) override
        {
            recorder.journal.push_back(prefix + command);
            return recorder.results[command];
        }
        RecordingHost& recorder;
        std::string prefix;
    };

    Expected<std::shared_ptr<Shell>> authorize(const std::vector<std::string>&) override
    {
        journal.emplace_back("prompt");
        if (declines) {
            return Unexpected({"User canceled.", error_number::userCanceled});
        }
        return std::make_shared<RecordingShell>(*this, "sudo ");
    }

    bool acceptsRequests() override { return fileManagerAnswers; }

    void begin(const std::vector<std::string>& commands) override
    {
        journal.emplace_back("begin");
        for (const std::string& command : commands) {
            journal.back() += " " + command + ";";
        }
    }
    void start(std::size_t index) override { journal.push_back("start " + std::to_string(index)); }
    void end() override { journal.emplace_back("end"); }

    RecordingShell shell_{*this, ""};
    FakeFolders folders_;
};

} // namespace corvellane::script

#pragma once

#include "platform/script/FileManager.h"
#include "platform/script/Interpreter.h"
#include "platform/script/Shell.h"
#include "tests/FakePlatform.h"

#include <map>
#include <string>
#include <vector>

namespace corvellane {

/// What scripts run against in tests: commands are recorded, without what the service puts in front of them, and not
/// run. One that is not in `results` succeeds and prints nothing.
class RecordingHost : AdministratorPrompt, FileManager {
public:
    ScriptHost host() { return {shell_, *this, *this, folders_}; }

    std::map<std::string, CommandResult> results;
    /// Commands with administrator rights begin with "sudo ".
    std::vector<std::string> commands;
    bool declines = false;
    bool fileManagerAnswers = true;
    int prompts = 0;

private:
    struct RecordingShell : Shell {
        RecordingShell(RecordingHost& owner, std::string mark)
            : recorder(owner)
            , prefix(std::move(mark))
        {
        }
        std::variant<CommandResult, ScriptError> run(const std::string& command) override
        {
            const std::string bare = command.substr(command.rfind("}; ") + 3);
            recorder.commands.push_back(prefix + bare);
            return recorder.results[bare];
        }
        RecordingHost& recorder;
        std::string prefix;
    };

    std::variant<std::unique_ptr<Shell>, ScriptError> authorize() override
    {
        ++prompts;
        if (declines) {
            return ScriptError{"User canceled.", script_error::userCanceled};
        }
        return std::make_unique<RecordingShell>(*this, "sudo ");
    }

    bool acceptsRequests() override { return fileManagerAnswers; }

    RecordingShell shell_{*this, ""};
    FakeFolders folders_;
};

} // namespace corvellane

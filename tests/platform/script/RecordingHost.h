#pragma once

#include "platform/script/FileManager.h"
#include "platform/script/Interpreter.h"
#include "platform/script/Shell.h"
#include "tests/FakePlatform.h"

#include <map>
#include <string>
#include <vector>

namespace corvellane {

/// What scripts run against in tests: commands are recorded, not run. A command is found in `results` by its last
/// part, behind whatever the service puts in front of it; one that is not there succeeds and prints nothing.
class RecordingHost {
public:
    ScriptHost host() { return {shell_, prompt_, fileManager_, folders_}; }

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
            for (const auto& [ending, result] : recorder.results) {
                if (command.ends_with("; " + ending)) {
                    recorder.commands.push_back(prefix + ending);
                    return result;
                }
            }
            recorder.commands.push_back(prefix + command.substr(command.rfind("}; ") + 3));
            return CommandResult{};
        }
        RecordingHost& recorder;
        std::string prefix;
    };

    struct RecordingPrompt : AdministratorPrompt {
        explicit RecordingPrompt(RecordingHost& owner)
            : recorder(owner)
        {
        }
        std::variant<std::unique_ptr<Shell>, ScriptError> authorize() override
        {
            ++recorder.prompts;
            if (recorder.declines) {
                return ScriptError{"User canceled.", script_error::userCanceled};
            }
            return std::make_unique<RecordingShell>(recorder, "sudo ");
        }
        RecordingHost& recorder;
    };

    struct SettableFileManager : FileManager {
        explicit SettableFileManager(RecordingHost& owner)
            : recorder(owner)
        {
        }
        bool acceptsRequests() override { return recorder.fileManagerAnswers; }
        RecordingHost& recorder;
    };

    RecordingShell shell_{*this, ""};
    RecordingPrompt prompt_{*this};
    SettableFileManager fileManager_{*this};
    FakeFolders folders_;
};

} // namespace corvellane

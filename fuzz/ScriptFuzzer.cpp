// Compiles and runs any text as a script; commands are recorded, not run.

#include "platform/script/InterpretedScriptService.h"
#include "tests/platform/script/RecordingHost.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string source(reinterpret_cast<const char*>(data), size);
    corvellane::script::RecordingHost recorder;
    const auto execution = corvellane::script::InterpretedScriptService(recorder.host()).create(source)->execute();
    if (execution.result.has_value() == execution.errorDescription.has_value()) {
        std::abort();
    }
    return 0;
}

#pragma once

#include "platform/ScriptService.h"
#include "platform/script/Interpreter.h"

#include <utility>

namespace corvellane::script {

/// The script service of systems that have none of their own: compiles and interprets the language of the install
/// script and of the automation probe. A script that does not compile, and an error that no `try` block catches, give
/// error information and no result.
class InterpretedScriptService : public ScriptService {
public:
    explicit InterpretedScriptService(Host host)
        : host_(std::move(host))
    {
    }

    std::unique_ptr<Script> create(std::string source) override;

private:
    Host host_;
};

} // namespace corvellane::script

#include "agreement/Document.h"

#include "agreement/AgreementFile.h"
#include "platform/Console.h"
#include "platform/Resources.h"

#include <utility>

namespace corvellane {

Document::Document(const Resources& resources, Console& console)
    : resources_(resources)
    , console_(console)
{
}

void Document::load(const std::string& file)
{
    const auto path = resources_.file(file, "rtf");
    if (!path) {
        console_.print("File not found");
        return;
    }
    auto text = readAgreement(*path);
    if (const auto* const failure = std::get_if<AgreementFailure>(&text)) {
        console_.print(failure->description);
        return;
    }
    data.set(std::move(std::get<AttributedText>(text)));
}

} // namespace corvellane

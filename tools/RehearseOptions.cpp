#include "tools/RehearseOptions.h"

#include "tools/PrintableText.h"

#include <filesystem>

namespace corvellane {
namespace {

namespace fs = std::filesystem;

/// Links and ".." stay as they are: only the system knows where they lead.
std::string absolutePath(const std::string& path)
{
    std::error_code error;
    std::string absolute = fs::absolute(path, error).native();
    while (absolute.size() > 1 && absolute.ends_with('/')) {
        absolute.pop_back();
    }
    return absolute;
}

/// Takes the arguments one by one; the first mistake is kept and ends them.
class OptionReader {
    using Subject = RehearseOptions::Subject;

public:
    explicit OptionReader(const std::vector<std::string>& arguments)
        : next_(arguments.begin())
        , end_(arguments.end())
    {
    }

    std::variant<RehearseOptions, UsageError> read()
    {
        while (next_ != end_ && error_.empty()) {
            readArgument(*next_++);
        }
        if (error_.empty()) {
            check();
        }
        if (!error_.empty()) {
            return UsageError{error_};
        }
        return options_;
    }

private:
    void readArgument(const std::string& argument)
    {
        if (argument == "--script") {
            options_.script = true;
        } else if (argument == "--into") {
            const std::string folder = absolutePath(valueOf(argument));
            options_.into = folder == "/" ? "" : folder;
        } else if (argument == "--select") {
            options_.select.push_back(valueOf(argument));
        } else if (argument == "--agreement") {
            readAgreement(Subject::agreement, argument);
        } else if (argument == "--agreement-text") {
            readAgreement(Subject::agreementText, argument);
        } else if (argument == "--help") {
            options_.subject = Subject::usage;
        } else if (argument == "--" && next_ != end_) {
            readProductsFolder(*next_++);
        } else if (argument.starts_with('-')) {
            error_ = "unknown option " + quotedPrintable(argument);
        } else {
            readProductsFolder(argument);
        }
    }

    void readAgreement(Subject subject, const std::string& argument)
    {
        options_.subject = subject;
        options_.agreement = valueOf(argument);
    }

    std::string valueOf(const std::string& option)
    {
        if (next_ == end_ || next_->empty()) {
            error_ = option + " needs a value";
            return {};
        }
        return *next_++;
    }

    void readProductsFolder(const std::string& argument)
    {
        if (!options_.productsFolder.empty()) {
            error_ = "one products folder is enough: " + quotedPrintable(argument);
        }
        options_.productsFolder = absolutePath(argument);
    }

    void check()
    {
        std::error_code error;
        if (options_.subject == Subject::usage) {
            return;
        }
        if (options_.subject != Subject::products) {
            if (!options_.productsFolder.empty() || options_.script || options_.into || !options_.select.empty()) {
                error_ = "an agreement is shown by itself, without products and what is done with them";
            }
        } else if (options_.productsFolder.empty()) {
            error_ = std::string("the products folder is missing; ") + rehearseUsage;
        } else if (!fs::is_directory(options_.productsFolder, error)) {
            error_ = quotedPrintable(options_.productsFolder) + " is no folder";
        }
    }

    std::vector<std::string>::const_iterator next_;
    std::vector<std::string>::const_iterator end_;
    RehearseOptions options_;
    std::string error_;
};

} // namespace

std::variant<RehearseOptions, UsageError> parseOptions(const std::vector<std::string>& arguments)
{
    return OptionReader(arguments).read();
}

} // namespace corvellane

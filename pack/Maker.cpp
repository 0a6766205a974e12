#include "pack/Maker.h"

#include "pack/Checksum.h"
#include "pack/DebianPackage.h"
#include "pack/Output.h"
#include "pack/Programs.h"
#include "pack/Progress.h"
#include "pack/Reading.h"
#include "pack/RpmPackage.h"
#include "pack/Signature.h"
#include "pack/Starter.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <future>
#include <map>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>

namespace corvellane::pack {
namespace {

namespace fs = std::filesystem;

constexpr auto everybodysProgram = fs::perms::owner_all | fs::perms::group_read | fs::perms::group_exec
    | fs::perms::others_read | fs::perms::others_exec;

/// A folder in the output, which is made, that goes with all that is in it at the end; so do the folders that were made
/// for it, unless something else has come into them.
class Workshop {
public:
    explicit Workshop(const fs::path& output)
        : path_(output / ".making-XXXXXX")
    {
        for (fs::path folder = fs::absolute(output); !fs::exists(folder); folder = folder.parent_path()) {
            made_.push_back(folder);
        }
        fs::create_directories(output);
        if (mkdtemp(path_.data()) == nullptr) {
            throw std::system_error(errno, std::generic_category(), "“" + output.native() + "” cannot be written");
        }
    }
    Workshop(const Workshop&) = delete;
    Workshop& operator=(const Workshop&) = delete;
    ~Workshop()
    {
        std::error_code error;
        fs::remove_all(path_, error);
        for (const fs::path& folder : made_) {
            fs::remove(folder, error);
        }
    }

    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

private:
    std::string path_;
    /// The innermost first.
    std::vector<fs::path> made_;
};

/// A file whose checksum is known when it has been written.
class SummedOutput {
public:
    explicit SummedOutput(const std::string& file)
        : output_(file)
    {
    }

    void write(const Block& bytes)
    {
        sum_.add(bytes);
        output_.write(bytes);
    }

    std::future<std::string> close()
    {
        output_.close();
        return sum_.take();
    }

private:
    Output output_;
    ChecksumBeside sum_;
};

bool isIn(const Formats& formats, const char* format)
{
    return std::ranges::count(formats, format) > 0;
}

/// What the formats that are asked for hold.
struct Holdings {
    Contents bundle;
    Contents debian;
    Contents rpm;
};

Holdings holdingsOf(const Ingredients& ingredients, const Formats& formats)
{
    const bool isBundled = isIn(formats, "run") || isIn(formats, "tar.zst");
    return {isBundled ? bundleOf(ingredients) : Contents(),
        isIn(formats, "deb") ? debianFilesOf(ingredients) : Contents(),
        isIn(formats, "rpm") ? rpmFilesOf(ingredients) : Contents()};
}

/// Makes one file after the other in the workshop.
class Maker {
public:
    Maker(const Ingredients& ingredients, const Formats& formats, const Holdings& holdings, const Workshop& workshop)
        : ingredients_(ingredients)
        , formats_(formats)
        , holdings_(holdings)
        , workshop_(workshop)
        , progress_(holdings.bundle.size() + holdings.debian.size() + holdings.rpm.size())
    {
    }

    /// Gives the names of all that was made.
    std::vector<std::string> make(const std::string& key)
    {
        if (isIn(formats_, "deb")) {
            makeDebianPackage();
        }
        if (isIn(formats_, "rpm")) {
            makeRpm(key);
        }
        if (isIn(formats_, "run") || isIn(formats_, "tar.zst")) {
            makeBundle();
        }
        return listed(key);
    }

private:
    /// The names of what was made, with the list of their checksums and its signature where there is a key.
    std::vector<std::string> listed(const std::string& key)
    {
        progress_.begin("SHA256SUMS");
        std::vector<std::string> names;
        std::string sums;
        for (auto& [name, checksum] : made_) {
            sums += checksum.get() + "  " + name + "\n";
            names.push_back(name);
        }
        writeText(workshop_ / "SHA256SUMS", sums);
        names.emplace_back("SHA256SUMS");
        if (!key.empty()) {
            sign(workshop_ / "SHA256SUMS", key);
            names.emplace_back("SHA256SUMS.asc");
        }
        return names;
    }

    Blocks counted()
    {
        return [this](const Block& bytes) { progress_.add(bytes.view().size()); };
    }

    /// Its checksum is worked out while the next file is made.
    void add(const std::string& name)
    {
        made_.emplace(name, std::async([file = workshop_ / name] { return checksumOfFile(file); }));
    }

    void makeDebianPackage()
    {
        const std::string name = debianNameOf(ingredients_);
        progress_.begin(name);
        Output output(workshop_ / name);
        writeDebianPackage(output, ingredients_, holdings_.debian, counted());
        output.close();
        add(name);
    }

    void makeRpm(const std::string& key)
    {
        const std::string name = rpmNameOf(ingredients_);
        progress_.begin(name);
        const std::string folder = workshop_ / "rpm";
        fs::create_directory(folder);
        auto package
            = std::async(std::launch::async, [&] { return makeRpmPackage(ingredients_, holdings_.rpm, folder); });
        while (package.wait_for(std::chrono::milliseconds(100)) != std::future_status::ready) {
            progress_.show();
        }
        fs::rename(package.get(), workshop_ / name);
        if (!key.empty()) {
            signRpm(workshop_ / name, key);
        }
        progress_.add(holdings_.rpm.size());
        add(name);
    }

    std::string nameOfArchive() const
    {
        return ingredients_.description.packageName() + "-" + ingredients_.description.version + "-"
            + machineOf(ingredients_.kit);
    }

    /// The folder as an archive: in the ".tar.zst" file alone, in the ".run" file between the program that unpacks it
    /// and its checksum.
    void makeBundle()
    {
        const std::string name = nameOfArchive();
        progress_.begin(name);
        std::optional<Output> archive;
        std::optional<SummedOutput> run;
        if (isIn(formats_, "tar.zst")) {
            archive.emplace(workshop_ / (name + ".tar.zst"));
        }
        if (isIn(formats_, "run")) {
            run.emplace(workshop_ / (name + ".run"));
            run->write(Block(starterOf(ingredients_, Payload::archive, "")));
        }
        std::string checksum = writeBundle([&](const Block& bytes) {
            if (archive) {
                archive->write(bytes);
            }
            if (run) {
                run->write(bytes);
            }
        });
        if (archive) {
            archive->close();
            made_.emplace(name + ".tar.zst",
                std::async(std::launch::deferred, [checksum]() mutable { return std::move(checksum); }));
        }
        if (run) {
            run->write(Block(checksum));
            made_.emplace(name + ".run", run->close());
            fs::permissions(workshop_ / (name + ".run"), everybodysProgram);
        }
    }

    /// With the starter, which carries the sum of all else. Gives the archive's checksum.
    std::string writeBundle(const Blocks& take)
    {
        ChecksumBeside ofArchive;
        ChecksumBeside ofFiles;
        Archive archive(
            [&](std::string_view bytes) {
                const auto block = Block(bytes);
                ofArchive.add(block);
                take(block);
            },
            ingredients_.epoch);
        FolderSum sum;
        for (const auto& [path, item] : holdings_.bundle.items()) {
            archive.add(nameOfArchive() + "/" + path, item, [&](const Block& bytes) {
                ofFiles.add(bytes);
                progress_.add(bytes.view().size());
            });
            sum.add(path, item, ofFiles.take());
        }
        const std::string starter = starterOf(ingredients_, Payload::folder, sum.hexadecimal());
        archive.add(nameOfArchive() + "/" + starterName, {Item::Kind::text, starter, true}, counted());
        archive.close();
        return ofArchive.take().get();
    }

    const Ingredients& ingredients_;
    const Formats& formats_;
    const Holdings& holdings_;
    const Workshop& workshop_;
    Progress progress_;
    /// Their names and checksums.
    std::map<std::string, std::future<std::string>> made_;
};

/// Before anything is made.
void findTools(const Formats& formats, const std::string& key)
{
    if (isIn(formats, "rpm")) {
        pathOf("rpmbuild", "rpm");
    }
    if (!key.empty()) {
        findKey(key);
    }
    if (!key.empty() && isIn(formats, "rpm")) {
        pathOf("rpmsign", "rpm");
    }
}

} // namespace

std::vector<std::string> makeInstallers(
    const Ingredients& ingredients, const Formats& formats, const std::string& output, const std::string& key)
{
    findTools(formats, key);
    const Holdings holdings = holdingsOf(ingredients, formats);
    const Workshop workshop(output);
    std::vector<std::string> made = Maker(ingredients, formats, holdings, workshop).make(key);
    for (std::string& name : made) {
        std::string path = (fs::path(output) / name).native();
        fs::rename(workshop / name, path);
        name = std::move(path);
    }
    if (key.empty()) {
        // That of an earlier list.
        fs::remove(fs::path(output) / "SHA256SUMS.asc");
    }
    return made;
}

} // namespace corvellane::pack

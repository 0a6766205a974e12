#include "cli/Installation.h"

#include "base/PathNames.h"
#include "helper/InstallFolders.h"
#include "install/ElementKind.h"
#include "install/InstallScript.h"
#include "tools/ModelRun.h"
#include "tools/PrintableText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace corvellane {
namespace {

std::string scriptFor(const Order& order, std::size_t index)
{
    ScriptText script;
    appendInstallation(script, order.persons[index].hosts, elementsFor(order, index), LinkFolders::ofEachKind);
    return std::move(script).finish();
}

/// Sorts what scripts make by the elements that it is made for.
class Sorter {
public:
    explicit Sorter(const Order& order)
    {
        for (const std::string& element : order.elements) {
            const std::string name(lastPathComponent(element));
            places_[element] = installation_.elements.size();
            installation_.elements.push_back({element, order.persons.front().hosts.application + name, {}});
        }
    }

    void add(const ModelTree& model, const Person& person)
    {
        const HostPaths& hosts = person.hosts;
        for (const std::string& host : {hosts.application, hosts.photo, hosts.video, hosts.lightroom}) {
            const std::string folder = withoutEnd(host);
            if (model.find(folder) != nullptr) {
                installation_.sharedFolders.insert(folder);
            }
            for (const auto& [path, entry] : model.below(folder)) {
                add(path, entry, person.account.id);
            }
        }
    }

    Installation finish() { return std::move(installation_); }

private:
    void add(const std::string& path, const ModelEntry& entry, uid_t person)
    {
        const bool isPersons = entry.owner == ModelEntry::Owner::person;
        const bool isShared = isSharedFolder(entry);
        if (isShared) {
            installation_.sharedFolders.insert(path);
        }
        const auto place = places_.find(entry.element);
        if (place != places_.end() && (isPersons || !isShared)) {
            installation_.elements[place->second].entries.try_emplace(path, Made{entry, isPersons ? person : 0});
        }
    }

    Installation installation_;
    std::map<std::string, std::size_t> places_;
};

} // namespace

std::vector<std::string> elementsFor(const Order& order, std::size_t index)
{
    std::vector<std::string> elements;
    std::ranges::copy_if(order.elements, std::back_inserter(elements),
        [&](const auto& element) { return index == 0 || kindOf(element) == ElementKind::lightroom; });
    return elements;
}

Expected<Installation> whatIsMade(const Order& order)
{
    ModelTree shipped;
    for (const std::string& element : order.elements) {
        readIntoModel(shipped, element);
    }
    const auto unreadable = std::ranges::find_if(
        shipped.below(order.productsFolder), [](const auto& entry) { return !entry.second.failure.empty(); });
    if (unreadable != shipped.below(order.productsFolder).end()) {
        return Unexpected({quotedPrintable(unreadable->first) + " cannot be read: " + unreadable->second.failure, 0});
    }
    Sorter sorter(order);
    for (std::size_t index = 0; index < order.persons.size(); ++index) {
        ModelTree model = shipped;
        runOnModel(model, scriptFor(order, index), order.productsFolder, order.persons[index].hosts);
        sorter.add(model, order.persons[index]);
    }
    return sorter.finish();
}

} // namespace corvellane

#include "cli/Choice.h"

#include "install/ElementKind.h"
#include "platform/posix/PosixStandardFolders.h"
#include "products/Discovery.h"
#include "products/Product.h"
#include "products/ProductSelection.h"
#include "tools/ProductNames.h"

#include <algorithm>
#include <filesystem>
#include <iterator>

namespace corvellane {

Refusal notWhole(const std::string& message)
{
    return {Status::failed, message + " Unpack or install the installer anew, as root."};
}

std::optional<Refusal> chooseElements(
    Order& order, const Resources& resources, const Files& files, const std::vector<std::string>& names)
{
    const auto found = discoverProducts(resources, files);
    if (!found || found->empty()) {
        return notWhole(found ? "There is no product in this installer." : found.error().message);
    }
    const ProductSelection all(*found);
    std::vector<std::string> chosen;
    for (const std::string& name : names) {
        const std::string* product = productNamed(*all.locations(), name);
        if (product == nullptr) {
            return Refusal{Status::wrongUsage, "there is no product “" + name + "”; “list” names them"};
        }
        chosen.push_back(*product);
    }
    for (const std::string& product : *all.locations()) {
        const bool isChosen = names.empty() || std::ranges::find(chosen, product) != chosen.end();
        auto elements = isChosen ? foldersIn(files, product) : Expected<std::vector<std::string>>();
        if (!elements) {
            return notWhole(elements.error().message);
        }
        std::ranges::move(*elements, std::back_inserter(order.elements));
    }
    return std::nullopt;
}

std::optional<Refusal> choosePersons(Order& order, const std::vector<std::string>& names, bool changes)
{
    std::vector<UserAccount> accounts;
    for (const std::string& name : names) {
        const auto account = userNamed(name);
        if (!account) {
            return Refusal{
                Status::wrongUsage, "there is no user “" + name + "” on this machine; “getent passwd” names them"};
        }
        if (changes && !hasRootRights() && account->id != realUser().id) {
            return Refusal{Status::notAuthorized, "only root does this for another user; start it with sudo"};
        }
        if (std::ranges::find(accounts, account->id, &UserAccount::id) == accounts.end()) {
            accounts.push_back(*account);
        }
    }
    for (const UserAccount& account : accounts.empty() ? std::vector{realUser()} : accounts) {
        const PosixStandardFolders folders("", account);
        order.persons.push_back({account, hostPathsOf(Product(folders))});
    }
    return std::nullopt;
}

std::optional<Refusal> whyHomeless(const Order& order)
{
    const bool isForHomes = std::ranges::find(order.elements, ElementKind::lightroom, &kindOf) != order.elements.end();
    for (const Person& person : order.persons) {
        std::error_code error;
        if (isForHomes && !std::filesystem::exists(person.account.home, error)) {
            return Refusal{Status::failed,
                "the home “" + person.account.home + "” of the user " + person.account.name
                    + " is not there; mount it, or leave that user out"};
        }
    }
    return std::nullopt;
}

std::optional<Refusal> whyWithoutLicense(const Resources& resources)
{
    const bool isThere = resources.file("CorvellaneEULA", "rtf").has_value();
    return isThere ? std::nullopt : std::optional(notWhole("The licence agreement CorvellaneEULA.rtf is missing."));
}

} // namespace corvellane

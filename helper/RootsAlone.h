#pragma once

#include <fts.h>

#include <functional>
#include <optional>
#include <string>

namespace corvellane::runner {

/// Why somebody else than root could change what the path leads to, for a person: that belongs to another user, or can
/// be written by others, or a folder or link on the way does. A group may write when it is root's, and anybody to a
/// folder on the way that has the sticky bit: there nobody can replace what is root's. Absent when nobody could.
std::optional<std::string> whyChangeable(const std::string& path);

/// What has to be true of all that a copy takes from a folder.
enum class Owner { anybody, rootAlone };

/// Is shown what a look comes across.
using SeeEntry = std::function<void(const FTSENT&)>;

/// Why a folder or file cannot be copied as a part of a product, for a person: it or something in it cannot be looked
/// at, is neither a folder nor a file nor a link, or could be changed by others than `owner`. `see` gets everything
/// that is looked at, folders before what is in them; links are not followed.
std::optional<std::string> whyNotCopied(const std::string& source, Owner owner, const SeeEntry& see = {});

} // namespace corvellane::runner

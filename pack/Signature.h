#pragma once

#include <string>

namespace corvellane::pack {

/// What these throw is std::runtime_error, with what the programs say of it. Keys are named as gpg has it; it asks for
/// their passphrases where it always does.

/// Throws where there is no such secret key, or no gpg.
void findKey(const std::string& key);

/// Makes FILE.asc, the file's signature.
void sign(const std::string& file, const std::string& key);

/// Puts a signature into an rpm.
void signRpm(const std::string& package, const std::string& key);

} // namespace corvellane::pack

#pragma once

namespace corvellane {

class Files;
class Resources;

/// Gives all windows the name by which a desktop finds their entry, their icon and what else belongs to them: the
/// identifier in the resource "Identifier.txt", which the maker of an installer chose; else that of the samples. Before
/// a window is shown.
void nameForDesktop(const Resources& resources, const Files& files);

} // namespace corvellane

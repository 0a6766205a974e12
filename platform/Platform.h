#pragma once

namespace corvellane {

class Application;
class Console;
class Dispatcher;
class Files;
class Pasteboard;
class Resources;
class ScriptService;
class StandardFolders;
class Workspace;

/// The services that the installer takes from the system it runs on. They outlive everything they are handed to.
struct Platform {
    Application& application;
    Console& console;
    Dispatcher& dispatcher;
    Files& files;
    Pasteboard& pasteboard;
    Resources& resources;
    ScriptService& scripts;
    StandardFolders& folders;
    Workspace& workspace;
};

} // namespace corvellane

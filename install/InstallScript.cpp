#include "install/InstallScript.h"

#include "base/PathNames.h"
#include "install/ElementKind.h"
#include "install/ScriptEscapes.h"

#include <algorithm>

namespace corvellane {
namespace {

/// A text in double quotes for Lua, inside such a text.
std::string luaQuoted(const std::string& text)
{
    return R"(\\\")" + text + R"(\\\")";
}

/// What Lightroom reads to offer an external editor.
std::string editorPreset(const std::string& identifier, const std::string& title, const std::string& application)
{
    return "s = {id = " + luaQuoted(identifier) + ",internalName = " + luaQuoted(title) + ",title = " + luaQuoted(title)
        + ",type = " + luaQuoted("ExternalEditor")
        + ",value = {\nexternalEditingFormat = " + luaQuoted("TIFF_None_16_ProPhotoRGB")
        + ",externalEditingFormat_dpi = 240,externalEditorFullPath = " + luaQuoted(application) + ",\n},version = 0,}";
}

/// Writes the script command by command. What a command quotes has been escaped for it before.
class Composer {
public:
    Composer(ScriptText& script, const HostPaths& hosts, LinkFolders folders)
        : script_(script)
        , hosts_(hosts)
        , escaped_{asArgument(hosts.application), asArgument(hosts.video), asArgument(hosts.photo),
              asArgument(hosts.lightroom)}
        , folders_(folders)
    {
        createFolder(escaped_.application);
    }

    void appendElement(const std::string& path)
    {
        const std::string ownName(lastPathComponent(path));
        const std::string name = asArgument(ownName);
        const ElementKind kind = kindOf(path);
        const std::string& host = escaped_.*traitsOf(kind).folder;
        if (kind != ElementKind::lightroom && createsFolderOf(kind)) {
            createFolder(host);
            created_.push_back(kind);
        }
        copy(asArgument(path), escaped_.application);
        switch (kind) {
        case ElementKind::lightroom:
            return appendLightroomLines(generationOf(path), hosts_.application + ownName, escaped_.application + name);
        case ElementKind::video:
            remove(host + "Glintmotion" + supersededSuffix(ownName) + ".plugin");
            remove(host + "Velvetgrain" + supersededSuffix(ownName) + ".plugin");
            return link(escaped_.application + name, host + name);
        case ElementKind::photo:
            return link(escaped_.application + name, host + name);
        }
    }

private:
    bool createsFolderOf(ElementKind kind) const
    {
        return folders_ == LinkFolders::ofTheFirstKind ? created_.empty()
                                                       : std::ranges::find(created_, kind) == created_.end();
    }

    void appendLightroomLines(
        const LightroomGeneration& generation, const std::string& unescaped, const std::string& installed)
    {
        const std::string title = "Corvellane Velvetgrain " + generation.digit;
        const std::string editors = escaped_.lightroom + "External Editor Presets/Corvellane/";
        const std::string presets = escaped_.lightroom + "Export Presets/" + title + "/";
        const std::string modules = escaped_.lightroom + "Modules/";
        const std::string plugin = installed + "/velvetgrain" + generation.digit + ".lrdevplugin";
        const std::string application = asEchoedLuaString(unescaped) + "/Velvetgrain" + generation.digit + ".app";
        createFolder(editors);
        createFolder(presets);
        copy(installed + "/" + title + "/", presets);
        createFolder(modules);
        link(plugin, modules);
        script_.append(
            {"echo ", quote, asEchoedText(unescaped), quote, " > ", quote, plugin, "/Path.txt", quote}, "  ");
        script_.append({"echo ", quote, editorPreset(generation.presetIdentifier, title, application), quote, " > ",
            quote, editors, title, ".lrtemplate", quote});
        for (const std::string& folder : {editors, presets, modules}) {
            script_.append({"chown -R $USER ", quote, folder, quote});
        }
    }

    void createFolder(std::string_view folder) { script_.append({"mkdir -p ", quote, folder, quote}); }
    void copy(std::string_view from, std::string_view to)
    {
        script_.append({"cp -R -f ", quote, from, quote, " ", quote, to, quote});
    }
    void remove(std::string_view bundle) { script_.append({"rm -R -f ", quote, bundle, quote}); }
    void link(std::string_view to, std::string_view at)
    {
        script_.append({"ln -f -h -s ", quote, to, quote, " ", quote, at, quote}, "  ");
    }

    ScriptText& script_;
    const HostPaths& hosts_;
    HostPaths escaped_;
    LinkFolders folders_;
    /// The kinds whose folders for links have been created.
    std::vector<ElementKind> created_;
};

} // namespace

std::string composeInstallScript(const HostPaths& hosts, const std::vector<std::string>& elements)
{
    ScriptText script;
    appendInstallation(script, hosts, elements, LinkFolders::ofTheFirstKind);
    return std::move(script).finish();
}

void appendInstallation(
    ScriptText& script, const HostPaths& hosts, const std::vector<std::string>& elements, LinkFolders folders)
{
    Composer composer(script, hosts, folders);
    for (const std::string& path : elements) {
        composer.appendElement(path);
    }
}

} // namespace corvellane

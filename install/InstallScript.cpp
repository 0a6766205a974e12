#include "install/InstallScript.h"

#include "base/PathNames.h"
#include "install/ElementKind.h"
#include "install/ScriptEscapes.h"

#include <utility>

namespace corvellane {
namespace {

constexpr const char* closing = R"(
on error errMsg
return errMsg
end try
return "Ok")";

/// A text in double quotes for the shell, inside a literal of the script.
std::string quoted(const std::string& text)
{
    return R"(\")" + text + R"(\")";
}

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
    explicit Composer(const HostPaths& hosts)
        : hosts_(hosts)
        , escaped_{asArgument(hosts.application), asArgument(hosts.video), asArgument(hosts.photo),
              asArgument(hosts.lightroom)}
    {
        createFolder(escaped_.application);
    }

    void appendElement(const std::string& path)
    {
        const std::string ownName(lastPathComponent(path));
        const std::string name = asArgument(ownName);
        const ElementKind kind = kindOf(path);
        const std::string& host = escaped_.*traitsOf(kind).folder;
        if (kind != ElementKind::lightroom && std::exchange(createsFolder_, false)) {
            createFolder(host);
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

    std::string finish() { return std::move(script_ += closing); }

private:
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
        append("echo " + quoted(asEchoedText(unescaped)) + " > " + quoted(plugin + "/Path.txt"), "  ");
        append("echo " + quoted(editorPreset(generation.presetIdentifier, title, application)) + " > "
            + quoted(editors + title + ".lrtemplate"));
        for (const std::string& folder : {editors, presets, modules}) {
            append("chown -R $USER " + quoted(folder));
        }
    }

    void createFolder(const std::string& folder) { append("mkdir -p " + quoted(folder)); }
    void copy(const std::string& from, const std::string& to) { append("cp -R -f " + quoted(from) + " " + quoted(to)); }
    void remove(const std::string& bundle) { append("rm -R -f " + quoted(bundle)); }
    void link(const std::string& to, const std::string& at)
    {
        append("ln -f -h -s " + quoted(to) + " " + quoted(at), "  ");
    }

    void append(const std::string& command, const char* space = " ")
    {
        script_.append("do shell script \"").append(command).append("\"").append(space);
        script_.append("with administrator privileges\n");
    }

    const HostPaths& hosts_;
    HostPaths escaped_;
    std::string script_ = "try\n";
    bool createsFolder_ = true;
};

} // namespace

std::string composeInstallScript(const HostPaths& hosts, const std::vector<std::string>& elements)
{
    Composer composer(hosts);
    for (const std::string& path : elements) {
        composer.appendElement(path);
    }
    return composer.finish();
}

} // namespace corvellane

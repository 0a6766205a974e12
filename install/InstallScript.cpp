#include "install/InstallScript.h"

#include "base/PathNames.h"
#include "install/ElementKind.h"
#include "install/ScriptEscapes.h"
#include "install/ScriptTemplate.h"

namespace corvellane {
namespace {

const ScriptTemplate header(R"(try
do shell script "mkdir -p \"[APP]\"" with administrator privileges
)");

const ScriptTemplate videoFolder(R"(do shell script "mkdir -p \"[MC]\"" with administrator privileges
)");

const ScriptTemplate videoElement(R"(do shell script "cp -R -f \"[P]\" \"[APP]\"" with administrator privileges
do shell script "rm -R -f \"[MC]Glintmotion[S].plugin\"" with administrator privileges
do shell script "rm -R -f \"[MC]Velvetgrain[S].plugin\"" with administrator privileges
do shell script "ln -f -h -s \"[APP][N]\" \"[MC][N]\""  with administrator privileges
)");

const ScriptTemplate photoFolder(R"(do shell script "mkdir -p \"[CC]\"" with administrator privileges
)");

const ScriptTemplate photoElement(R"(do shell script "cp -R -f \"[P]\" \"[APP]\"" with administrator privileges
do shell script "ln -f -h -s \"[APP][N]\" \"[CC][N]\""  with administrator privileges
)");

// clang-format off
    const ScriptTemplate lightroomElement(R"(do shell script "cp -R -f \"[P]\" \"[APP]\"" with administrator privileges
do shell script "mkdir -p \"[LR]External Editor Presets/Corvellane/\"" with administrator privileges
do shell script "mkdir -p \"[LR]Export Presets/Corvellane Velvetgrain [D]/\"" with administrator privileges
do shell script "cp -R -f \"[APP][N]/Corvellane Velvetgrain [D]/\" \"[LR]Export Presets/Corvellane Velvetgrain [D]/\"" with administrator privileges
do shell script "mkdir -p \"[LR]Modules/\"" with administrator privileges
do shell script "ln -f -h -s \"[APP][N]/velvetgrain[D].lrdevplugin\" \"[LR]Modules/\""  with administrator privileges
do shell script "echo \"[echo APP N]\" > \"[APP][N]/velvetgrain[D].lrdevplugin/Path.txt\""  with administrator privileges
do shell script "echo \"s = {id = \\\"[ID]\\\",internalName = \\\"Corvellane Velvetgrain [D]\\\",title = \\\"Corvellane Velvetgrain [D]\\\",type = \\\"ExternalEditor\\\",value = {
externalEditingFormat = \\\"TIFF_None_16_ProPhotoRGB\\\",externalEditingFormat_dpi = 240,externalEditorFullPath = \\\"[Lua APP N]/Velvetgrain[D].app\\\",
},version = 0,}\" > \"[LR]External Editor Presets/Corvellane/Corvellane Velvetgrain [D].lrtemplate\"" with administrator privileges
do shell script "chown -R $USER \"[LR]External Editor Presets/Corvellane/\"" with administrator privileges
do shell script "chown -R $USER \"[LR]Export Presets/Corvellane Velvetgrain [D]/\"" with administrator privileges
do shell script "chown -R $USER \"[LR]Modules/\"" with administrator privileges
)");
// clang-format on

constexpr const char* closing = R"(
on error errMsg
return errMsg
end try
return "Ok")";

class Composer {
public:
    explicit Composer(const HostPaths& hosts)
        : hosts_(hosts)
    {
        fillings_[Place::application] = asArgument(hosts.application);
        fillings_[Place::video] = asArgument(hosts.video);
        fillings_[Place::photo] = asArgument(hosts.photo);
        fillings_[Place::lightroom] = asArgument(hosts.lightroom);
        append(header);
    }

    void appendElement(const std::string& path)
    {
        const std::string_view name = lastPathComponent(path);
        fillings_[Place::element] = asArgument(path);
        fillings_[Place::name] = asArgument(name);
        switch (kindOf(path)) {
        case ElementKind::lightroom:
            return appendLightroomElement(path, name);
        case ElementKind::video:
            fillings_[Place::suffix] = supersededSuffix(name);
            return appendLinkedElement(videoFolder, videoElement);
        case ElementKind::photo:
            return appendLinkedElement(photoFolder, photoElement);
        }
    }

    std::string finish()
    {
        script_ += closing;
        return std::move(script_);
    }

private:
    void append(const ScriptTemplate& lines) { lines.appendTo(script_, fillings_); }

    void appendLinkedElement(const ScriptTemplate& folder, const ScriptTemplate& element)
    {
        if (createsFolder_) {
            append(folder);
            createsFolder_ = false;
        }
        append(element);
    }

    void appendLightroomElement(std::string_view path, std::string_view name)
    {
        const LightroomGeneration generation = generationOf(path);
        std::string installed = hosts_.application;
        installed += name;
        fillings_[Place::digit] = generation.digit;
        fillings_[Place::identifier] = generation.presetIdentifier;
        fillings_[Place::echoedInstalledElement] = asEchoedText(installed);
        fillings_[Place::luaInstalledElement] = asEchoedLuaString(installed);
        append(lightroomElement);
    }

    const HostPaths& hosts_;
    Fillings fillings_;
    std::string script_;
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

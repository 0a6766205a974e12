try
do shell script "mkdir -p \"/Applications/Corvellane/\"" with administrator privileges
do shell script "mkdir -p \"/Library/Application Support/Adobe/Common/Plug-ins/7.0/MediaCore/Corvellane/\"" with administrator privileges
do shell script "cp -R -f \"/Volumes/Installer/Installer.app/Contents/Resources/Products/Velvetgrain Tessellane/Velvetgrain Tessellane 2.plugin\" \"/Applications/Corvellane/\"" with administrator privileges
do shell script "rm -R -f \"/Library/Application Support/Adobe/Common/Plug-ins/7.0/MediaCore/Corvellane/Glintmotion2.plugin\"" with administrator privileges
do shell script "rm -R -f \"/Library/Application Support/Adobe/Common/Plug-ins/7.0/MediaCore/Corvellane/Velvetgrain2.plugin\"" with administrator privileges
do shell script "ln -f -h -s \"/Applications/Corvellane/Velvetgrain Tessellane 2.plugin\" \"/Library/Application Support/Adobe/Common/Plug-ins/7.0/MediaCore/Corvellane/Velvetgrain Tessellane 2.plugin\""  with administrator privileges
do shell script "cp -R -f \"/Volumes/Installer/Installer.app/Contents/Resources/Products/Velvetgrain Photo/Velvetgrain.plugin\" \"/Applications/Corvellane/\"" with administrator privileges
do shell script "ln -f -h -s \"/Applications/Corvellane/Velvetgrain.plugin\" \"/Library/Application Support/Adobe/Plug-Ins/CC/Corvellane/Velvetgrain.plugin\""  with administrator privileges
do shell script "cp -R -f \"/Volumes/Installer/Installer.app/Contents/Resources/Products/Velvetgrain Lightroom/Velvetgrain 3 Lightroom\" \"/Applications/Corvellane/\"" with administrator privileges
do shell script "mkdir -p \"/Users/user/Library/Application Support/Adobe/Lightroom/External Editor Presets/Corvellane/\"" with administrator privileges
do shell script "mkdir -p \"/Users/user/Library/Application Support/Adobe/Lightroom/Export Presets/Corvellane Velvetgrain 3/\"" with administrator privileges
do shell script "cp -R -f \"/Applications/Corvellane/Velvetgrain 3 Lightroom/Corvellane Velvetgrain 3/\" \"/Users/user/Library/Application Support/Adobe/Lightroom/Export Presets/Corvellane Velvetgrain 3/\"" with administrator privileges
do shell script "mkdir -p \"/Users/user/Library/Application Support/Adobe/Lightroom/Modules/\"" with administrator privileges
do shell script "ln -f -h -s \"/Applications/Corvellane/Velvetgrain 3 Lightroom/velvetgrain3.lrdevplugin\" \"/Users/user/Library/Application Support/Adobe/Lightroom/Modules/\""  with administrator privileges
do shell script "echo \"/Applications/Corvellane/Velvetgrain 3 Lightroom\" > \"/Applications/Corvellane/Velvetgrain 3 Lightroom/velvetgrain3.lrdevplugin/Path.txt\""  with administrator privileges
do shell script "echo \"s = {id = \\\"48C1AC0C-58BB-4E36-82DD-F146866B8164\\\",internalName = \\\"Corvellane Velvetgrain 3\\\",title = \\\"Corvellane Velvetgrain 3\\\",type = \\\"ExternalEditor\\\",value = {
externalEditingFormat = \\\"TIFF_None_16_ProPhotoRGB\\\",externalEditingFormat_dpi = 240,externalEditorFullPath = \\\"/Applications/Corvellane/Velvetgrain 3 Lightroom/Velvetgrain3.app\\\",
},version = 0,}\" > \"/Users/user/Library/Application Support/Adobe/Lightroom/External Editor Presets/Corvellane/Corvellane Velvetgrain 3.lrtemplate\"" with administrator privileges
do shell script "chown -R $USER \"/Users/user/Library/Application Support/Adobe/Lightroom/External Editor Presets/Corvellane/\"" with administrator privileges
do shell script "chown -R $USER \"/Users/user/Library/Application Support/Adobe/Lightroom/Export Presets/Corvellane Velvetgrain 3/\"" with administrator privileges
do shell script "chown -R $USER \"/Users/user/Library/Application Support/Adobe/Lightroom/Modules/\"" with administrator privileges

on error errMsg
return errMsg
end try
return "Ok"
try
do shell script "mkdir -p \"/A\\`/\"" with administrator privileges
do shell script "cp -R -f \"/Velvetgrain 4 Lightroom/\\\\\" \"/A\\`/\"" with administrator privileges
do shell script "mkdir -p \"/L\\$/External Editor Presets/Corvellane/\"" with administrator privileges
do shell script "mkdir -p \"/L\\$/Export Presets/Corvellane Velvetgrain 4/\"" with administrator privileges
do shell script "cp -R -f \"/A\\`/\\\\/Corvellane Velvetgrain 4/\" \"/L\\$/Export Presets/Corvellane Velvetgrain 4/\"" with administrator privileges
do shell script "mkdir -p \"/L\\$/Modules/\"" with administrator privileges
do shell script "ln -f -h -s \"/A\\`/\\\\/velvetgrain4.lrdevplugin\" \"/L\\$/Modules/\""  with administrator privileges
do shell script "echo \"/A\\`/\\\\\\\\\" > \"/A\\`/\\\\/velvetgrain4.lrdevplugin/Path.txt\""  with administrator privileges
do shell script "echo \"s = {id = \\\"E70E900E-6A66-4882-B59A-2B05764B1430\\\",internalName = \\\"Corvellane Velvetgrain 4\\\",title = \\\"Corvellane Velvetgrain 4\\\",type = \\\"ExternalEditor\\\",value = {
externalEditingFormat = \\\"TIFF_None_16_ProPhotoRGB\\\",externalEditingFormat_dpi = 240,externalEditorFullPath = \\\"/A\\`/\\\\\\\\\\\\\\\\/Velvetgrain4.app\\\",
},version = 0,}\" > \"/L\\$/External Editor Presets/Corvellane/Corvellane Velvetgrain 4.lrtemplate\"" with administrator privileges
do shell script "chown -R $USER \"/L\\$/External Editor Presets/Corvellane/\"" with administrator privileges
do shell script "chown -R $USER \"/L\\$/Export Presets/Corvellane Velvetgrain 4/\"" with administrator privileges
do shell script "chown -R $USER \"/L\\$/Modules/\"" with administrator privileges
do shell script "mkdir -p \"/P/\"" with administrator privileges
do shell script "cp -R -f \"/a.plugin\" \"/A\\`/\"" with administrator privileges
do shell script "ln -f -h -s \"/A\\`/a.plugin\" \"/P/a.plugin\""  with administrator privileges
do shell script "cp -R -f \"/\\$ 2/Tessellane/\\\".plugin\" \"/A\\`/\"" with administrator privileges
do shell script "rm -R -f \"/V\\\"/Glintmotion.plugin\"" with administrator privileges
do shell script "rm -R -f \"/V\\\"/Velvetgrain.plugin\"" with administrator privileges
do shell script "ln -f -h -s \"/A\\`/\\\".plugin\" \"/V\\\"/\\\".plugin\""  with administrator privileges

on error errMsg
return errMsg
end try
return "Ok"
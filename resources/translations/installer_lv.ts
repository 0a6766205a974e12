<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="lv" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Atlasīt visu</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Atpakaļ</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tālāk</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Aizvērt</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Jums tiks parādīti soļi, kas nepieciešami, lai lietotu šo programmatūru.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Nav atrasts neviens produkts</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Izvēlētie produkti ir sekmīgi uzinstalēti.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Instalēšana netika sekmīgi pabeigta.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detaļas</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Lai turpinātu lietot programmatūru, jums jāpiekrīt programmatūras licences līguma noteikumiem.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Spiediet “Piekrītu”, lai turpinātu, vai “Nepiekrītu”, lai atceltu un izietu no instalēšanas programmas.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Lasīt licenci</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Nepiekrītu</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Piekrītu</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Spiediet “Instalēt”, lai pabeigtu instalēšanu.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atcelt</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalēt</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Lai instalēšanas programma varētu veikt izmaiņas, iestatījumos atļaujiet piekļuvi Finder.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Atvērt iestatījumus</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Kopēt starpliktuvē</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Instalēšanas norise</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Pašreizējais solis</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Iziet</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Logs</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizēt</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Tālummainīt</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Instalēt Corvellane attēlu un video spraudņus</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>spraudnis;foto;video;instalēt;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Vednis, kas instalē Corvellane spraudņus foto un video programmām: tas parāda licences līgumu, ļauj izvēlēties produktus, vienreiz pajautā administratora paroli un parāda pilnu žurnālu, ja kaut kas neizdodas.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Instalēt spraudņus</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Lai uzinstalētu izvēlētos Corvellane spraudņus visiem šī datora lietotājiem, nepieciešama autentificēšanās</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Noņemt spraudņus</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Lai noņemtu izvēlētos Corvellane spraudņus visiem šī datora lietotājiem, nepieciešama autentificēšanās</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopēt</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopēt &amp;saites adresi</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Atlasīt visu</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Ritināt šurp</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Kreisā mala</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Sākums</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Labā mala</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Beigas</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Lappusi pa kreisi</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Lappusi augšup</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Lappusi pa labi</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Lappusi lejup</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Ritināt pa kreisi</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Ritināt augšup</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Ritināt pa labi</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Ritināt lejup</translation>
    </message>
</context>
</TS>

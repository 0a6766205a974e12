<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="lt" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Pažymėti viską</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Atgal</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Toliau</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Užverti</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Jums bus parodyti žingsniai, kurių reikia norint naudoti šią programinę įrangą.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Produktų nerasta</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Pasirinkti produktai sėkmingai įdiegti.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Diegimas nebuvo sėkmingai užbaigtas.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Išsamiau</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Norėdami toliau naudoti programinę įrangą, turite sutikti su programinės įrangos licencijos sutarties sąlygomis.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Spustelėkite „Sutinku“, jei norite tęsti, arba „Nesutinku“, jei norite atsisakyti ir išeiti iš diegimo programos.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Skaityti licenciją</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Nesutinku</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Sutinku</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Spustelėkite „Įdiegti“, kad užbaigtumėte diegimą.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Atsisakyti</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Įdiegti</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Kad diegimo programa galėtų atlikti pakeitimus, nustatymuose leiskite prieigą prie „Finder“.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Atverti nustatymus</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Kopijuoti į iškarpinę</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Diegimo eiga</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Dabartinis žingsnis</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Išeiti</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Langas</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Suskleisti</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Keisti mastelį</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Įdiegti „Corvellane“ vaizdo ir nuotraukų papildinius</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>papildinys;nuotrauka;vaizdo įrašas;įdiegti;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Vediklis, įdiegiantis „Corvellane“ papildinius nuotraukų ir vaizdo programoms: jis parodo licencijos sutartį, leidžia pasirinkti produktus, vieną kartą paprašo administratoriaus slaptažodžio ir parodo visą žurnalą, jei kas nors nepavyksta.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Įdiegti papildinius</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Norint įdiegti pasirinktus „Corvellane“ papildinius visiems šio kompiuterio naudotojams, reikia patvirtinti tapatybę</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Pašalinti papildinius</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Norint pašalinti pasirinktus „Corvellane“ papildinius visiems šio kompiuterio naudotojams, reikia patvirtinti tapatybę</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopijuoti</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopijuoti &amp;saito adresą</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Pažymėti viską</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Slinkti čia</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Kairysis kraštas</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Pradžia</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Dešinysis kraštas</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Pabaiga</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Puslapis kairėn</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Puslapis aukštyn</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Puslapis dešinėn</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Puslapis žemyn</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Slinkti kairėn</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Slinkti aukštyn</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Slinkti dešinėn</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Slinkti žemyn</translation>
    </message>
</context>
</TS>

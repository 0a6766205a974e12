<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="mt" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Agħżel kollox</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Lura</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Li jmiss</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Agħlaq</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Se tiġi ggwidat fil-passi meħtieġa biex tuża dan is-softwer.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Ma nstab l-ebda prodott</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Il-prodotti magħżula ġew installati b’suċċess.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>L-installazzjoni ma tlestietx b’suċċess.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettalji</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Biex tkompli tuża s-softwer, trid taqbel mat-termini tal-ftehim tal-liċenzja tas-softwer.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Ikklikkja “Naqbel” biex tkompli jew “Ma naqbilx” biex tikkanċella u toħroġ mill-installatur.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Aqra l-liċenzja</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Ma naqbilx</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Naqbel</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Ikklikkja “Installa” biex tlesti l-installazzjoni.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Ikkanċella</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installa</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Biex l-installatur ikun jista’ jagħmel bidliet, ippermetti l-aċċess għal Finder fis-settings.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Iftaħ is-settings</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Ikkopja fil-klibbord</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Progress tal-installazzjoni</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Il-pass attwali</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Oħroġ</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Tieqa</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Imminimizza</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Kabbar/ċekken</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Installa l-plug-ins ta’ Corvellane għall-immaġnijiet u l-vidjow</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>plug-in;ritratt;vidjow;installa;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Gwida li tinstalla l-plug-ins ta’ Corvellane għall-applikazzjonijiet tar-ritratti u l-vidjow: turi l-ftehim tal-liċenzja, tħallik tagħżel il-prodotti, titlob darba l-password ta’ amministratur, u turi r-reġistru sħiħ jekk xi ħaġa tmur ħażin.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Installa l-plug-ins</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Hija meħtieġa awtentikazzjoni biex jiġu installati l-plug-ins ta’ Corvellane magħżula għall-utenti kollha ta’ dan il-kompjuter</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Neħħi l-plug-ins</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Hija meħtieġa awtentikazzjoni biex jitneħħew il-plug-ins ta’ Corvellane magħżula għall-utenti kollha ta’ dan il-kompjuter</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Ikkopja</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Ikkopja l-indirizz tal-&amp;link</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Agħżel kollox</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Skrollja hawn</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Tarf tax-xellug</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Fuq nett</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Tarf tal-lemin</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Isfel nett</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Paġna lejn ix-xellug</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Paġna ’l fuq</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Paġna lejn il-lemin</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Paġna ’l isfel</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Skrollja lejn ix-xellug</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Skrollja ’l fuq</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Skrollja lejn il-lemin</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Skrollja ’l isfel</translation>
    </message>
</context>
</TS>

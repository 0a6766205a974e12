<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Vælg alle</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Næste</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Luk</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Du bliver ført gennem de trin, der er nødvendige for at bruge denne software.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Ingen produkter fundet</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>De valgte produkter er blevet installeret.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Installationen blev ikke gennemført.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>For at fortsætte med at bruge softwaren skal du acceptere vilkårene i softwarelicensaftalen.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Klik på “Acceptér” for at fortsætte, eller klik på “Afvis” for at annullere og afslutte installationsprogrammet.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Læs licens</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Afvis</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Acceptér</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Klik på “Installér” for at gennemføre installationen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annullér</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installér</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Tillad adgang til Finder i indstillingerne, så installationsprogrammet kan foretage ændringer.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Åbn indstillinger</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Kopiér til udklipsholder</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Installationens forløb</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Nuværende trin</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Vindue</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimér</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Installér Corvellanes billed- og videoudvidelsesmoduler</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>udvidelsesmodul;foto;video;installér;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>En guide, der installerer Corvellanes udvidelsesmoduler til foto- og videoprogrammer: Den viser licensaftalen, lader dig vælge produkterne, spørger én gang om en administrators adgangskode og viser den fulde log, hvis noget går galt.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Installér udvidelsesmoduler</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Der kræves godkendelse for at installere de valgte Corvellane-udvidelsesmoduler for alle brugere af denne computer</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Fjern udvidelsesmoduler</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Der kræves godkendelse for at fjerne de valgte Corvellane-udvidelsesmoduler for alle brugere af denne computer</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiér</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopiér &amp;linkadresse</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Vælg alle</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Rul hertil</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Venstre kant</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Højre kant</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bund</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Side til venstre</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Side op</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Side til højre</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Side ned</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Rul til venstre</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Rul op</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Rul til højre</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Rul ned</translation>
    </message>
</context>
</TS>

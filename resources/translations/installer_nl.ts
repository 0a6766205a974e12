<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Alles selecteren</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>U wordt door de stappen geleid die nodig zijn om deze software te gebruiken.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Geen producten gevonden</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>De geselecteerde producten zijn geïnstalleerd.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>De installatie is niet voltooid.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Om de software te blijven gebruiken, moet u akkoord gaan met de voorwaarden van de softwarelicentieovereenkomst.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Klik op ‘Akkoord’ om door te gaan of op ‘Niet akkoord’ om te annuleren en het installatieprogramma te sluiten.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Licentie lezen</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Niet akkoord</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Akkoord</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Klik op ‘Installeren’ om de installatie te voltooien.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installeren</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Sta in de instellingen toegang tot Finder toe zodat het installatieprogramma wijzigingen kan aanbrengen.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Instellingen openen</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Naar klembord kopiëren</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Voortgang van de installatie</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Huidige stap</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Venster</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimaliseren</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoomen</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>De beeld- en videoplug-ins van Corvellane installeren</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>plug-in;foto;video;installeren;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Een wizard die de Corvellane-plug-ins voor foto- en videotoepassingen installeert: hij toont de licentieovereenkomst, laat u de producten kiezen, vraagt één keer om het wachtwoord van een beheerder en toont het volledige logboek als er iets misgaat.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Plug-ins installeren</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Authenticatie is vereist om de geselecteerde Corvellane-plug-ins voor alle gebruikers van deze computer te installeren</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Plug-ins verwijderen</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Authenticatie is vereist om de geselecteerde Corvellane-plug-ins voor alle gebruikers van deze computer te verwijderen</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiëren</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Linkadres kopiëren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles selecteren</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Hierheen schuiven</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linkerrand</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Begin</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Rechterrand</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Einde</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Pagina naar links</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Pagina omhoog</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Pagina naar rechts</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Pagina omlaag</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Naar links schuiven</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Omhoog schuiven</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Naar rechts schuiven</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Omlaag schuiven</translation>
    </message>
</context>
</TS>

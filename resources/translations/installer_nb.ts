<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Velg alle</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Neste</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Du blir ledet gjennom trinnene som er nødvendige for å bruke denne programvaren.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Fant ingen produkter</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>De valgte produktene er installert.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Installasjonen ble ikke fullført.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>For å fortsette å bruke programvaren må du godta vilkårene i lisensavtalen for programvaren.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Klikk på «Godta» for å fortsette, eller på «Avslå» for å avbryte og avslutte installasjonsprogrammet.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Les lisensen</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Avslå</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Godta</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Klikk på «Installer» for å fullføre installasjonen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Gi tilgang til Finder i innstillingene slik at installasjonsprogrammet kan gjøre endringer.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Åpne innstillinger</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Kopier til utklippstavle</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Fremdrift for installasjonen</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Nåværende trinn</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Vindu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimer</translation>
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
        <translation>Installer Corvellanes programtillegg for bilde og video</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>programtillegg;foto;video;installer;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>En veiviser som installerer Corvellanes programtillegg for foto- og videoprogrammer: Den viser lisensavtalen, lar deg velge produkter, spør én gang om passordet til en administrator og viser hele loggen hvis noe går galt.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Installer programtillegg</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Autentisering kreves for å installere de valgte Corvellane-programtilleggene for alle brukere av denne datamaskinen</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Fjern programtillegg</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Autentisering kreves for å fjerne de valgte Corvellane-programtilleggene for alle brukere av denne datamaskinen</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopier</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopier &amp;lenkeadresse</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Velg alle</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Rull hit</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Venstre kant</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Topp</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Høyre kant</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bunn</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Side til venstre</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Side opp</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Side til høyre</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Side ned</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Rull til venstre</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Rull opp</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Rull til høyre</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Rull ned</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Markera alla</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Bakåt</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Du vägleds genom de steg som krävs för att använda den här programvaran.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Inga produkter hittades</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>De valda produkterna har installerats.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Installationen slutfördes inte.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>För att fortsätta använda programvaran måste du godkänna villkoren i programvarulicensavtalet.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Klicka på ”Godkänn” för att fortsätta eller på ”Avböj” för att avbryta och avsluta installationsprogrammet.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Läs licensen</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Avböj</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Godkänn</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Klicka på ”Installera” för att slutföra installationen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installera</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Tillåt åtkomst till Finder i inställningarna så att installationsprogrammet kan göra ändringar.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Öppna inställningar</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Kopiera till urklipp</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Installationens förlopp</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Aktuellt steg</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fönster</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimera</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zooma</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Installera Corvellanes insticksmoduler för bild och video</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>insticksmodul;foto;video;installera;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>En guide som installerar Corvellanes insticksmoduler för foto- och videoprogram: den visar licensavtalet, låter dig välja produkter, frågar en gång efter en administratörs lösenord och visar hela loggen om något går fel.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Installera insticksmoduler</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Autentisering krävs för att installera de valda Corvellane-insticksmodulerna för alla användare av den här datorn</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Ta bort insticksmoduler</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Autentisering krävs för att ta bort de valda Corvellane-insticksmodulerna för alla användare av den här datorn</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiera</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopiera &amp;länkadress</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Markera alla</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Rulla hit</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Vänsterkant</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Början</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Högerkant</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Slutet</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Sida åt vänster</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Sida uppåt</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Sida åt höger</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Sida nedåt</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Rulla åt vänster</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Rulla uppåt</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Rulla åt höger</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Rulla nedåt</translation>
    </message>
</context>
</TS>

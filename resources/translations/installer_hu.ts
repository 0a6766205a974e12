<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Összes kijelölése</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tovább</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>A program végigvezeti Önt a szoftver használatához szükséges lépéseken.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Nem találhatók termékek</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>A kiválasztott termékek telepítése sikeresen befejeződött.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>A telepítés nem fejeződött be sikeresen.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Részletek</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>A szoftver további használatához el kell fogadnia a szoftver licencszerződésének feltételeit.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>A folytatáshoz kattintson az „Elfogadom” gombra, vagy a megszakításhoz és a telepítőből való kilépéshez a „Nem fogadom el” gombra.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Licenc elolvasása</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Nem fogadom el</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Elfogadom</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>A telepítés befejezéséhez kattintson a „Telepítés” gombra.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Telepítés</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Ahhoz, hogy a telepítő módosításokat végezhessen, engedélyezze a Finder elérését a beállításokban.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Beállítások megnyitása</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Másolás a vágólapra</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>A telepítés folyamata</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Jelenlegi lépés</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ablak</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimalizálás</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Nagyítás</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>A Corvellane kép- és videobővítményeinek telepítése</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>bővítmény;fénykép;videó;telepítés;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Varázsló, amely fotó- és videoalkalmazásokhoz telepíti a Corvellane bővítményeit: megjeleníti a licencszerződést, lehetővé teszi a termékek kiválasztását, egyszer kéri egy rendszergazda jelszavát, és hiba esetén megjeleníti a teljes naplót.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Bővítmények telepítése</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Hitelesítés szükséges a kiválasztott Corvellane bővítmények telepítéséhez a számítógép összes felhasználója számára</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Bővítmények eltávolítása</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Hitelesítés szükséges a kiválasztott Corvellane bővítmények eltávolításához a számítógép összes felhasználója számára</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Másolás</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Hivatkozás címének másolása</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Összes kijelölése</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Görgetés ide</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bal széle</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Eleje</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Jobb széle</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Vége</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Oldal balra</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Oldal fel</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Oldal jobbra</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Oldal le</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Görgetés balra</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Görgetés fel</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Görgetés jobbra</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Görgetés le</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Vybrat vše</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Provedeme vás kroky, které jsou nutné k používání tohoto softwaru.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Nebyly nalezeny žádné produkty</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Vybrané produkty byly úspěšně nainstalovány.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Instalace nebyla úspěšně dokončena.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Podrobnosti</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Chcete-li software dále používat, musíte souhlasit s podmínkami licenční smlouvy k softwaru.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Kliknutím na „Souhlasím“ budete pokračovat, kliknutím na „Nesouhlasím“ instalaci zrušíte a instalátor ukončíte.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Přečíst licenci</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Nesouhlasím</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Souhlasím</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Instalaci dokončíte kliknutím na „Nainstalovat“.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Nainstalovat</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Aby mohl instalátor provádět změny, povolte v nastavení přístup k Finderu.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Otevřít nastavení</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Zkopírovat do schránky</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Průběh instalace</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Aktuální krok</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Okno</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimalizovat</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zvětšit</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Nainstalovat zásuvné moduly Corvellane pro obrázky a video</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>zásuvný modul;fotografie;video;instalace;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Průvodce, který nainstaluje zásuvné moduly Corvellane do aplikací pro fotografie a video: zobrazí licenční smlouvu, nechá vás vybrat produkty, jednou se zeptá na heslo správce a v případě potíží ukáže úplný záznam.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Nainstalovat zásuvné moduly</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>K instalaci vybraných zásuvných modulů Corvellane pro všechny uživatele tohoto počítače je vyžadováno ověření</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Odebrat zásuvné moduly</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>K odebrání vybraných zásuvných modulů Corvellane pro všechny uživatele tohoto počítače je vyžadováno ověření</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopírovat</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopírovat &amp;adresu odkazu</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Vybrat vše</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Posunout sem</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Levý okraj</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Začátek</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Pravý okraj</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Konec</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>O stránku doleva</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>O stránku nahoru</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>O stránku doprava</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>O stránku dolů</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Posunout doleva</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Posunout nahoru</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Posunout doprava</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Posunout dolů</translation>
    </message>
</context>
</TS>

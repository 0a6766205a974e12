<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Vybrať všetko</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Späť</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Ďalej</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavrieť</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Prevedieme vás krokmi, ktoré sú potrebné na používanie tohto softvéru.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Nenašli sa žiadne produkty</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Vybrané produkty boli úspešne nainštalované.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Inštalácia nebola úspešne dokončená.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Podrobnosti</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Ak chcete softvér naďalej používať, musíte súhlasiť s podmienkami licenčnej zmluvy k softvéru.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Kliknutím na „Súhlasím“ budete pokračovať, kliknutím na „Nesúhlasím“ inštaláciu zrušíte a inštalátor ukončíte.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Prečítať licenciu</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Nesúhlasím</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Súhlasím</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Inštaláciu dokončíte kliknutím na „Nainštalovať“.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušiť</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Nainštalovať</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Aby mohol inštalátor vykonať zmeny, povoľte v nastaveniach prístup k Finderu.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Otvoriť nastavenia</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Skopírovať do schránky</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Priebeh inštalácie</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Aktuálny krok</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Ukončiť</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Okno</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimalizovať</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zväčšiť</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Nainštalovať zásuvné moduly Corvellane pre obrázky a video</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>zásuvný modul;fotografia;video;inštalácia;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Sprievodca, ktorý nainštaluje zásuvné moduly Corvellane do aplikácií pre fotografie a video: zobrazí licenčnú zmluvu, umožní vybrať produkty, raz sa opýta na heslo správcu a v prípade problémov ukáže úplný záznam.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Nainštalovať zásuvné moduly</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Na inštaláciu vybraných zásuvných modulov Corvellane pre všetkých používateľov tohto počítača je potrebné overenie</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Odstrániť zásuvné moduly</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Na odstránenie vybraných zásuvných modulov Corvellane pre všetkých používateľov tohto počítača je potrebné overenie</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopírovať</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopírovať &amp;adresu odkazu</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Vybrať všetko</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Posunúť sem</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Ľavý okraj</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Začiatok</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Pravý okraj</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Koniec</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>O stranu doľava</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>O stranu nahor</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>O stranu doprava</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>O stranu nadol</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Posunúť doľava</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Posunúť nahor</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Posunúť doprava</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Posunúť nadol</translation>
    </message>
</context>
</TS>

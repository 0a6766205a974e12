<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hr" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Odaberi sve</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Natrag</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalje</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zatvori</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Provest ćemo vas kroz korake potrebne za korištenje ovog softvera.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Nema pronađenih proizvoda</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Odabrani proizvodi uspješno su instalirani.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Instalacija nije uspješno dovršena.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Pojedinosti</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Za nastavak korištenja softvera morate prihvatiti uvjete licencnog ugovora za softver.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Kliknite „Slažem se” za nastavak ili „Ne slažem se” za odustajanje i izlaz iz instalacijskog programa.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Pročitaj licencu</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Ne slažem se</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Slažem se</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Kliknite „Instaliraj” za dovršetak instalacije.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instaliraj</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Kako bi instalacijski program mogao unijeti promjene, u postavkama dopustite pristup Finderu.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Otvori postavke</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Kopiraj u međuspremnik</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Napredak instalacije</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Trenutačni korak</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Završi</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Prozor</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Smanji</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Uvećaj</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Instalirajte Corvellane priključke za slike i video</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>priključak;fotografija;video;instalacija;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Čarobnjak koji instalira Corvellane priključke za foto i video programe: prikazuje licencni ugovor, omogućuje odabir proizvoda, jednom traži administratorsku lozinku i prikazuje cijeli zapisnik ako nešto pođe po zlu.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Instalacija priključaka</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Potrebna je ovjera za instalaciju odabranih Corvellane priključaka za sve korisnike ovog računala</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Uklanjanje priključaka</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Potrebna je ovjera za uklanjanje odabranih Corvellane priključaka za sve korisnike ovog računala</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiraj</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopiraj adresu &amp;poveznice</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Odaberi sve</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Pomakni ovdje</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Lijevi rub</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Vrh</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Desni rub</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Dno</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Stranica lijevo</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Stranica gore</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Stranica desno</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Stranica dolje</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Pomakni lijevo</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Pomakni gore</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Pomakni desno</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Pomakni dolje</translation>
    </message>
</context>
</TS>

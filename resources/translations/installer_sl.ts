<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sl" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Izberi vse</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Nazaj</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Naprej</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zapri</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Vodili vas bomo skozi korake, ki so potrebni za uporabo te programske opreme.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Ni najdenih izdelkov</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Izbrani izdelki so uspešno nameščeni.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Namestitev ni bila uspešno dokončana.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Podrobnosti</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Za nadaljnjo uporabo programske opreme se morate strinjati s pogoji licenčne pogodbe za programsko opremo.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Kliknite »Strinjam se« za nadaljevanje ali »Ne strinjam se« za preklic in izhod iz namestitvenega programa.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Preberi licenco</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Ne strinjam se</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Strinjam se</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Kliknite »Namesti«, da dokončate namestitev.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Prekliči</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Namesti</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Da bo namestitveni program lahko izvedel spremembe, v nastavitvah dovolite dostop do programa Finder.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Odpri nastavitve</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Kopiraj v odložišče</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Potek namestitve</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Trenutni korak</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Končaj</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Okno</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Skrči</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Povečava</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Namestitev vstavkov Corvellane za slike in video</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>vstavek;fotografija;video;namestitev;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Čarovnik, ki namesti vstavke Corvellane za programe za fotografije in video: pokaže licenčno pogodbo, ponudi izbiro izdelkov, enkrat vpraša za skrbniško geslo in pokaže celoten dnevnik, če gre kaj narobe.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Namestitev vstavkov</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Za namestitev izbranih vstavkov Corvellane za vse uporabnike tega računalnika je potrebna overitev</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Odstranitev vstavkov</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Za odstranitev izbranih vstavkov Corvellane za vse uporabnike tega računalnika je potrebna overitev</translation>
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
        <translation>Kopiraj naslov &amp;povezave</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Izberi vse</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Drsaj sem</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Levi rob</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Začetek</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Desni rob</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Konec</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Stran levo</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Stran gor</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Stran desno</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Stran dol</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Drsaj levo</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Drsaj gor</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Drsaj desno</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Drsaj dol</translation>
    </message>
</context>
</TS>

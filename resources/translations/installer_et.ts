<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="et" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Vali kõik</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Tagasi</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Edasi</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sulge</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Teid juhitakse läbi sammude, mis on vajalikud selle tarkvara kasutamiseks.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Ühtegi toodet ei leitud</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Valitud tooted on paigaldatud.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Paigaldamine ei õnnestunud.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Üksikasjad</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Tarkvara kasutamise jätkamiseks peate nõustuma tarkvara litsentsilepingu tingimustega.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Jätkamiseks klõpsake „Nõustun“, loobumiseks ja paigaldusprogrammist väljumiseks „Ei nõustu“.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Loe litsentsi</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Ei nõustu</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Nõustun</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Paigaldamise lõpuleviimiseks klõpsake „Paigalda“.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Loobu</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Paigalda</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Lubage seadetes ligipääs Finderile, et paigaldusprogramm saaks muudatusi teha.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Ava seaded</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Kopeeri lõikelauale</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Paigaldamise edenemine</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Praegune samm</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Lõpeta</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Aken</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimeeri</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Suurenda</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Corvellane’i pildi- ja videopluginate paigaldamine</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>plugin;foto;video;paigaldamine;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Abimees, mis paigaldab Corvellane’i pluginad foto- ja videorakendustele: see näitab litsentsilepingut, laseb valida tooted, küsib üks kord administraatori parooli ja näitab tervet logi, kui midagi läheb valesti.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Pluginate paigaldamine</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Valitud Corvellane’i pluginate paigaldamiseks kõigile selle arvuti kasutajatele on vajalik autentimine</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Pluginate eemaldamine</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Valitud Corvellane’i pluginate eemaldamiseks kõigilt selle arvuti kasutajatelt on vajalik autentimine</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopeeri</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopeeri &amp;lingi aadress</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Vali kõik</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Keri siia</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Vasak serv</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Algus</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Parem serv</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Lõpp</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Lehekülg vasakule</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Lehekülg üles</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Lehekülg paremale</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Lehekülg alla</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Keri vasakule</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Keri üles</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Keri paremale</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Keri alla</translation>
    </message>
</context>
</TS>

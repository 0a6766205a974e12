<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ro" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Selectează tot</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Înapoi</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Înainte</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Închide</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Veți fi ghidat prin pașii necesari pentru a utiliza acest program.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Nu s-a găsit niciun produs</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Produsele selectate au fost instalate cu succes.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Instalarea nu a fost finalizată cu succes.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalii</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Pentru a utiliza în continuare programul trebuie să acceptați termenii contractului de licență software.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Apăsați „Accept” pentru a continua sau „Nu accept” pentru a anula și a ieși din programul de instalare.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Citește licența</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Nu accept</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Accept</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Apăsați „Instalează” pentru a finaliza instalarea.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anulează</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalează</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Pentru ca programul de instalare să poată face modificări, permiteți accesul la Finder în setări.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Deschide setările</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Copiază în clipboard</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Progresul instalării</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Pasul curent</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Ieșire</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fereastră</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizează</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Mărire/micșorare</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Instalează modulele de imagine și video Corvellane</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>modul;fotografie;video;instalare;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Un asistent care instalează modulele Corvellane pentru aplicații foto și video: arată contractul de licență, vă lasă să alegeți produsele, cere o singură dată parola unui administrator și arată jurnalul complet dacă ceva nu merge bine.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Instalarea modulelor</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Este necesară autentificarea pentru a instala modulele Corvellane selectate pentru toți utilizatorii acestui calculator</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Eliminarea modulelor</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Este necesară autentificarea pentru a elimina modulele Corvellane selectate pentru toți utilizatorii acestui calculator</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiază</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copiază adresa &amp;legăturii</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selectează tot</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Derulează aici</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Marginea stângă</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Început</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Marginea dreaptă</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Sfârșit</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Pagină la stânga</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Pagină în sus</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Pagină la dreapta</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Pagină în jos</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Derulează la stânga</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Derulează în sus</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Derulează la dreapta</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Derulează în jos</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Sie werden durch die Schritte geführt, die für die Verwendung dieser Software erforderlich sind.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Keine Produkte gefunden</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Die ausgewählten Produkte wurden erfolgreich installiert.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Die Installation wurde nicht erfolgreich abgeschlossen.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Um die Software weiter zu verwenden, müssen Sie den Bedingungen des Softwarelizenzvertrags zustimmen.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Klicken Sie auf „Zustimmen“, um fortzufahren, oder auf „Ablehnen“, um abzubrechen und das Installationsprogramm zu beenden.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Lizenz lesen</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Ablehnen</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Zustimmen</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Klicken Sie auf „Installieren“, um die Installation abzuschließen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Damit das Installationsprogramm Änderungen vornehmen kann, erlauben Sie bitte in den Einstellungen den Zugriff auf den Finder.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>In die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Aktueller Schritt</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Fortschritt der Installation</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
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
        <translation>Die Bild- und Video-Plug-ins von Corvellane installieren</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>Plug-in;Foto;Video;installieren;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Ein Assistent, der die Corvellane-Plug-ins für Foto- und Videoprogramme installiert: Er zeigt den Lizenzvertrag, lässt Sie die Produkte auswählen, fragt einmal nach dem Passwort eines Administrators und zeigt das vollständige Protokoll, wenn etwas schiefgeht.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Plug-ins installieren</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Zum Installieren der ausgewählten Corvellane-Plug-ins für alle Benutzer dieses Rechners ist eine Legitimierung nötig</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Plug-ins entfernen</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Zum Entfernen der ausgewählten Corvellane-Plug-ins für alle Benutzer dieses Rechners ist eine Legitimierung nötig</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Link-Adresse kopieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Hierher blättern</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Rechter Rand</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Seite nach links</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Seite nach oben</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Seite nach rechts</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Seite nach unten</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Nach links blättern</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Nach oben blättern</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Nach rechts blättern</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Nach unten blättern</translation>
    </message>
</context>
</TS>

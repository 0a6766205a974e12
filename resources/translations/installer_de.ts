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
        <source>Corvellane Plugin Installer</source>
        <translation>Corvellane Plugin Installer</translation>
    </message>
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
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Verrai guidato attraverso i passaggi necessari per utilizzare questo software.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Nessun prodotto trovato</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>I prodotti selezionati sono stati installati correttamente.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>L’installazione non è stata completata correttamente.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Per continuare a utilizzare il software è necessario accettare i termini del contratto di licenza del software.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Fai clic su “Accetta” per continuare o su “Rifiuta” per annullare e uscire dal programma di installazione.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Leggi la licenza</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Rifiuta</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Accetta</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Fai clic su “Installa” per completare l’installazione.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installa</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Per consentire al programma di installazione di apportare modifiche, autorizza l’accesso al Finder nelle impostazioni.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Apri impostazioni</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Copia negli appunti</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Avanzamento dell’installazione</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Passaggio attuale</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Finestra</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizza</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Ingrandisci/riduci</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Installa i plug-in per immagini e video di Corvellane</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>plug-in;foto;video;installare;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Una procedura guidata che installa i plug-in Corvellane per le applicazioni di foto e video: mostra il contratto di licenza, permette di scegliere i prodotti, chiede una sola volta la password di un amministratore e mostra il registro completo se qualcosa va storto.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Installa plug-in</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>È richiesta l’autenticazione per installare i plug-in Corvellane selezionati per tutti gli utenti di questo computer</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Rimuovi plug-in</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>È richiesta l’autenticazione per rimuovere i plug-in Corvellane selezionati per tutti gli utenti di questo computer</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copia indirizzo del co&amp;llegamento</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Scorri fino a qui</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bordo sinistro</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Bordo destro</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Pagina a sinistra</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Pagina su</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Pagina a destra</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Pagina giù</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Scorri a sinistra</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scorri in su</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Scorri a destra</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scorri in giù</translation>
    </message>
</context>
</TS>

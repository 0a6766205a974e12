<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Επιλογή όλων</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Πίσω</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Επόμενο</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Κλείσιμο</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Θα καθοδηγηθείτε στα βήματα που απαιτούνται για τη χρήση αυτού του λογισμικού.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Δεν βρέθηκαν προϊόντα</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Τα επιλεγμένα προϊόντα εγκαταστάθηκαν με επιτυχία.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Η εγκατάσταση δεν ολοκληρώθηκε με επιτυχία.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Λεπτομέρειες</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Για να συνεχίσετε να χρησιμοποιείτε το λογισμικό, πρέπει να αποδεχτείτε τους όρους της άδειας χρήσης λογισμικού.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Κάντε κλικ στο «Συμφωνώ» για να συνεχίσετε ή στο «Διαφωνώ» για ακύρωση και έξοδο από το πρόγραμμα εγκατάστασης.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Ανάγνωση άδειας</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Διαφωνώ</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Συμφωνώ</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Κάντε κλικ στο «Εγκατάσταση» για να ολοκληρώσετε την εγκατάσταση.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Ακύρωση</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Εγκατάσταση</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Για να μπορεί το πρόγραμμα εγκατάστασης να κάνει αλλαγές, επιτρέψτε την πρόσβαση στο Finder από τις ρυθμίσεις.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Άνοιγμα ρυθμίσεων</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Αντιγραφή στο πρόχειρο</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Πρόοδος της εγκατάστασης</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Τρέχον βήμα</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Έξοδος</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Παράθυρο</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Ελαχιστοποίηση</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Εστίαση</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Εγκατάσταση των προσθέτων εικόνας και βίντεο της Corvellane</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>πρόσθετο;φωτογραφία;βίντεο;εγκατάσταση;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Ένας οδηγός που εγκαθιστά τα πρόσθετα της Corvellane για εφαρμογές φωτογραφίας και βίντεο: εμφανίζει την άδεια χρήσης, σας αφήνει να επιλέξετε τα προϊόντα, ζητά μία φορά τον κωδικό πρόσβασης ενός διαχειριστή και εμφανίζει το πλήρες αρχείο καταγραφής αν κάτι πάει στραβά.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Εγκατάσταση προσθέτων</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Απαιτείται πιστοποίηση για την εγκατάσταση των επιλεγμένων προσθέτων της Corvellane για όλους τους χρήστες αυτού του υπολογιστή</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Αφαίρεση προσθέτων</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Απαιτείται πιστοποίηση για την αφαίρεση των επιλεγμένων προσθέτων της Corvellane για όλους τους χρήστες αυτού του υπολογιστή</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Αντιγραφή</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Αντιγραφή διεύθυνσης &amp;συνδέσμου</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Επιλογή όλων</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Κύλιση εδώ</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Αριστερή άκρη</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Αρχή</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Δεξιά άκρη</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Τέλος</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Σελίδα αριστερά</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Σελίδα πάνω</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Σελίδα δεξιά</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Σελίδα κάτω</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Κύλιση αριστερά</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Κύλιση πάνω</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Κύλιση δεξιά</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Κύλιση κάτω</translation>
    </message>
</context>
</TS>

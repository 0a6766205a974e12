<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Vous allez être guidé dans les étapes nécessaires à l’utilisation de ce logiciel.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Aucun produit trouvé</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Les produits sélectionnés ont été installés.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>L’installation ne s’est pas terminée correctement.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Pour continuer à utiliser le logiciel, vous devez accepter les termes du contrat de licence du logiciel.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Cliquez sur Accepter pour continuer ou sur Refuser pour annuler et quitter le programme d’installation.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Lire la licence</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Refuser</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Accepter</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Cliquez sur « Installer » pour terminer l’installation.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Pour que le programme d’installation puisse effectuer des modifications, autorisez l’accès au Finder dans les réglages.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Ouvrir les réglages</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Copier dans le presse-papiers</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Étape actuelle</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Progression de l’installation</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Agrandir/Réduire</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Installer les modules d’image et de vidéo Corvellane</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>module;photo;vidéo;installer;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Un assistant qui installe les modules Corvellane pour les applications de photo et de vidéo : il présente le contrat de licence, laisse choisir les produits, demande une seule fois le mot de passe d’un administrateur et affiche le journal complet en cas de problème.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Installer des modules</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Une authentification est requise pour installer les modules Corvellane sélectionnés pour tous les utilisateurs de cet ordinateur</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Supprimer des modules</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Une authentification est requise pour supprimer les modules Corvellane sélectionnés pour tous les utilisateurs de cet ordinateur</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copier l’adresse du &amp;lien</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Défiler jusqu’ici</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bord gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Bord droit</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Page à gauche</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Page à droite</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Défiler vers la gauche</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Défiler vers le haut</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Défiler vers la droite</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Défiler vers le bas</translation>
    </message>
</context>
</TS>

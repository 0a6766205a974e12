<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Valitse kaikki</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Edellinen</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seuraava</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sulje</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Sinut opastetaan tämän ohjelmiston käyttöön tarvittavien vaiheiden läpi.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Tuotteita ei löytynyt</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Valitut tuotteet on asennettu.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Asennusta ei saatu suoritettua loppuun.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Yksityiskohdat</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Jotta voit jatkaa ohjelmiston käyttöä, sinun on hyväksyttävä ohjelmiston käyttöoikeussopimuksen ehdot.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Jatka napsauttamalla ”Hyväksy” tai peruuta ja lopeta asennusohjelma napsauttamalla ”En hyväksy”.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Lue käyttöoikeussopimus</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>En hyväksy</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Hyväksy</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Viimeistele asennus napsauttamalla ”Asenna”.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Peruuta</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Asenna</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Salli Finderin käyttö asetuksissa, jotta asennusohjelma voi tehdä muutoksia.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Avaa asetukset</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Kopioi leikepöydälle</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Asennuksen edistyminen</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Nykyinen vaihe</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Lopeta</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ikkuna</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Pienennä</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoomaa</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Asenna Corvellanen kuva- ja videoliitännäiset</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>liitännäinen;valokuva;video;asenna;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Ohjattu toiminto, joka asentaa Corvellane-liitännäiset valokuva- ja videosovelluksiin: se näyttää käyttöoikeussopimuksen, antaa sinun valita tuotteet, kysyy kerran ylläpitäjän salasanaa ja näyttää koko lokin, jos jokin menee vikaan.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Asenna liitännäisiä</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Valittujen Corvellane-liitännäisten asentaminen tämän tietokoneen kaikille käyttäjille vaatii tunnistautumisen</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Poista liitännäisiä</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Valittujen Corvellane-liitännäisten poistaminen tämän tietokoneen kaikilta käyttäjiltä vaatii tunnistautumisen</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopioi</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopioi &amp;linkin osoite</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Valitse kaikki</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Vieritä tähän</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Vasen reuna</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Alku</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Oikea reuna</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Loppu</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Sivu vasemmalle</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Sivu ylös</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Sivu oikealle</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Sivu alas</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Vieritä vasemmalle</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Vieritä ylös</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Vieritä oikealle</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Vieritä alas</translation>
    </message>
</context>
</TS>

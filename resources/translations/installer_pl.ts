<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Przeprowadzimy Cię przez kroki niezbędne do korzystania z tego oprogramowania.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Nie znaleziono produktów</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Wybrane produkty zostały zainstalowane.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Instalacja nie została ukończona.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Aby dalej korzystać z oprogramowania, należy zaakceptować warunki umowy licencyjnej oprogramowania.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Kliknij „Zgadzam się”, aby kontynuować, lub „Nie zgadzam się”, aby anulować i zakończyć działanie instalatora.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Przeczytaj licencję</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Nie zgadzam się</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Zgadzam się</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Kliknij „Zainstaluj”, aby ukończyć instalację.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Zainstaluj</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Aby instalator mógł wprowadzać zmiany, zezwól w ustawieniach na dostęp do programu Finder.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Otwórz ustawienia</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Skopiuj do schowka</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Postęp instalacji</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Bieżący krok</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Okno</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Zminimalizuj</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Powiększ</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Instalacja wtyczek graficznych i wideo Corvellane</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>wtyczka;zdjęcie;wideo;instalacja;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Kreator, który instaluje wtyczki Corvellane do programów fotograficznych i wideo: wyświetla umowę licencyjną, pozwala wybrać produkty, raz pyta o hasło administratora i pokazuje pełny dziennik, gdy coś się nie powiedzie.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Instalacja wtyczek</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Wymagane jest uwierzytelnienie, aby zainstalować wybrane wtyczki Corvellane dla wszystkich użytkowników tego komputera</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Usuwanie wtyczek</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Wymagane jest uwierzytelnienie, aby usunąć wybrane wtyczki Corvellane dla wszystkich użytkowników tego komputera</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>S&amp;kopiuj</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Skopiuj adres &amp;odnośnika</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Zaznacz wszystko</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Przewiń tutaj</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Lewa krawędź</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Początek</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Prawa krawędź</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Koniec</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Strona w lewo</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Strona w górę</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Strona w prawo</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Strona w dół</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Przewiń w lewo</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Przewiń w górę</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Przewiń w prawo</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Przewiń w dół</translation>
    </message>
</context>
</TS>

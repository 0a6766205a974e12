<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="bg" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Избор на всичко</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Напред</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Затваряне</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Ще бъдете преведени през стъпките, необходими за използването на този софтуер.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Няма намерени продукти</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Избраните продукти бяха инсталирани успешно.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Инсталирането не завърши успешно.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Подробности</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>За да продължите да използвате софтуера, трябва да приемете условията на лицензионното споразумение за софтуера.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Натиснете „Приемам“, за да продължите, или „Не приемам“, за да се откажете и да излезете от програмата за инсталиране.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Четене на лиценза</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Не приемам</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Приемам</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Натиснете „Инсталиране“, за да завършите инсталацията.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отказ</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Инсталиране</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>За да може програмата за инсталиране да прави промени, разрешете достъпа до Finder в настройките.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Отваряне на настройките</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Копиране в буфера</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Напредък на инсталирането</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Текуща стъпка</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Изход</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Прозорец</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Минимизиране</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Мащабиране</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Инсталиране на приставките на Corvellane за изображения и видео</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>приставка;снимка;видео;инсталиране;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Помощник, който инсталира приставките на Corvellane за програми за снимки и видео: показва лицензионното споразумение, дава възможност да изберете продуктите, иска еднократно паролата на администратор и показва пълния дневник, ако нещо се обърка.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Инсталиране на приставки</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Необходимо е удостоверяване, за да се инсталират избраните приставки на Corvellane за всички потребители на този компютър</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Премахване на приставки</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Необходимо е удостоверяване, за да се премахнат избраните приставки на Corvellane за всички потребители на този компютър</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копиране</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Копиране на адреса на &amp;връзката</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Избор на всичко</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Придвижване дотук</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Ляв край</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Начало</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Десен край</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Край</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Страница наляво</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Страница нагоре</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Страница надясно</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Страница надолу</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Придвижване наляво</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Придвижване нагоре</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Придвижване надясно</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Придвижване надолу</translation>
    </message>
</context>
</TS>

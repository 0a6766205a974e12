<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Вибрати все</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далі</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Ви пройдете всі кроки, потрібні для користування цим програмним забезпеченням.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Продуктів не знайдено</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Вибрані продукти успішно встановлено.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Встановлення не було успішно завершено.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Подробиці</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Щоб і надалі користуватися програмним забезпеченням, потрібно прийняти умови ліцензійної угоди.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Натисніть «Приймаю», щоб продовжити, або «Не приймаю», щоб скасувати встановлення й вийти з програми встановлення.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Читати ліцензію</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Не приймаю</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Приймаю</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Натисніть «Встановити», щоб завершити встановлення.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Встановити</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Щоб програма встановлення могла вносити зміни, дозвольте доступ до Finder у налаштуваннях.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Відкрити налаштування</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Скопіювати до буфера обміну</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Перебіг встановлення</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Поточний крок</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Завершити</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Вікно</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Згорнути</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Змінити масштаб</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Встановлення модулів Corvellane для зображень і відео</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>модуль;фото;відео;встановлення;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Майстер, який встановлює модулі Corvellane для програм обробки фото й відео: показує ліцензійну угоду, дає змогу вибрати продукти, один раз запитує пароль адміністратора й показує повний журнал, якщо щось пішло не так.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Встановлення модулів</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Для встановлення вибраних модулів Corvellane для всіх користувачів цього комп’ютера потрібна автентифікація</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Вилучення модулів</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Для вилучення вибраних модулів Corvellane для всіх користувачів цього комп’ютера потрібна автентифікація</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копіювати</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Копіювати &amp;адресу посилання</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Вибрати все</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Прокрутити сюди</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Лівий край</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Початок</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Правий край</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Кінець</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>На сторінку ліворуч</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>На сторінку вгору</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>На сторінку праворуч</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>На сторінку вниз</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Прокрутити ліворуч</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Прокрутити вгору</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Прокрутити праворуч</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Прокрутити вниз</translation>
    </message>
</context>
</TS>

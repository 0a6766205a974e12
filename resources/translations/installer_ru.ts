<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Выбрать все</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Вы пройдёте все шаги, необходимые для использования этого программного обеспечения.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Продукты не найдены</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Выбранные продукты успешно установлены.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Установка не была успешно завершена.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Подробности</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Чтобы продолжить использование программного обеспечения, необходимо принять условия лицензионного соглашения.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Нажмите «Принимаю», чтобы продолжить, или «Не принимаю», чтобы отменить установку и выйти из программы установки.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Читать лицензию</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Не принимаю</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Принимаю</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Нажмите «Установить», чтобы завершить установку.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Установить</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Чтобы программа установки могла вносить изменения, разрешите доступ к Finder в настройках.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Открыть настройки</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Скопировать в буфер обмена</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Ход установки</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Текущий шаг</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Завершить</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Окно</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Изменить масштаб</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Установка модулей Corvellane для изображений и видео</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>модуль;фото;видео;установка;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Мастер, который устанавливает модули Corvellane для программ обработки фото и видео: показывает лицензионное соглашение, позволяет выбрать продукты, один раз запрашивает пароль администратора и показывает полный журнал, если что-то пошло не так.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Установка модулей</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Для установки выбранных модулей Corvellane для всех пользователей этого компьютера требуется аутентификация</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Удаление модулей</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Для удаления выбранных модулей Corvellane для всех пользователей этого компьютера требуется аутентификация</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Копировать &amp;адрес ссылки</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выбрать все</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Прокрутить сюда</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Левый край</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Начало</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Правый край</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Конец</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>На страницу влево</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>На страницу вверх</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>На страницу вправо</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>На страницу вниз</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Прокрутить влево</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Прокрутить вверх</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Прокрутить вправо</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Прокрутить вниз</translation>
    </message>
</context>
</TS>

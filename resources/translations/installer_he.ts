<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>בחירת הכול</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>חזרה</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>הבא</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>המתקין ילווה אותך בשלבים הנחוצים לשימוש בתוכנה זו.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>לא נמצאו מוצרים</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>המוצרים הנבחרים הותקנו בהצלחה.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>ההתקנה לא הושלמה בהצלחה.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>פרטים</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>כדי להמשיך להשתמש בתוכנה יש להסכים לתנאי הסכם רישיון התוכנה.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>יש ללחוץ על &quot;הסכמה&quot; כדי להמשיך או על &quot;סירוב&quot; כדי לבטל ולצאת מתוכנית ההתקנה.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>קריאת הרישיון</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>סירוב</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>הסכמה</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>יש ללחוץ על &quot;התקנה&quot; כדי להשלים את ההתקנה.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>התקנה</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>כדי שתוכנית ההתקנה תוכל לבצע שינויים, יש לאפשר גישה אל Finder בהגדרות.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>פתיחת ההגדרות</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>העתקה ללוח</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>התקדמות ההתקנה</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>השלב הנוכחי</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>יציאה</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>חלון</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>מזעור</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>הגדלה/הקטנה</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>התקנת תוספי התמונה והווידאו של Corvellane</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>תוסף;תמונה;וידאו;התקנה;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>אשף שמתקין את תוספי Corvellane ליישומי תמונה ווידאו: הוא מציג את הסכם הרישיון, מאפשר לבחור את המוצרים, מבקש פעם אחת סיסמת מנהל ומציג את היומן המלא אם משהו השתבש.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>התקנת תוספים</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>נדרש אימות כדי להתקין את תוספי Corvellane הנבחרים לכל המשתמשים במחשב זה</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>הסרת תוספים</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>נדרש אימות כדי להסיר את תוספי Corvellane הנבחרים לכל המשתמשים במחשב זה</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>ה&amp;עתקה</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>העתקת &amp;כתובת הקישור</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>בחירת הכול</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>גלילה לכאן</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>קצה שמאלי</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>ראש</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>קצה ימני</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>תחתית</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>עמוד שמאלה</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>עמוד למעלה</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>עמוד ימינה</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>עמוד למטה</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>גלילה שמאלה</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>גלילה למעלה</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>גלילה ימינה</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>גלילה למטה</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>RTL</translation>
    </message>
</context>
</TS>

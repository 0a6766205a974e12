<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>سيتم إرشادك خلال الخطوات اللازمة لاستخدام هذا البرنامج.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>لم يُعثر على أي منتجات</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>تم تثبيت المنتجات المحددة بنجاح.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>لم يكتمل التثبيت بنجاح.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>لمتابعة استخدام البرنامج، يجب أن توافق على شروط اتفاقية ترخيص البرنامج.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>انقر على «أوافق» للمتابعة، أو على «لا أوافق» للإلغاء وإنهاء برنامج التثبيت.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>قراءة الترخيص</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>لا أوافق</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>أوافق</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>انقر على «تثبيت» لإكمال التثبيت.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>تثبيت</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>ليتمكن برنامج التثبيت من إجراء التغييرات، يُرجى السماح بالوصول إلى Finder من الإعدادات.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>فتح الإعدادات</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>نسخ إلى الحافظة</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>تقدم التثبيت</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>الخطوة الحالية</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>نافذة</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>تكبير</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>تثبيت ملحقات Corvellane للصور والفيديو</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>ملحق;صورة;فيديو;تثبيت;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>معالج يثبّت ملحقات Corvellane لتطبيقات الصور والفيديو: يعرض اتفاقية الترخيص، ويتيح لك اختيار المنتجات، ويطلب كلمة مرور أحد المديرين مرة واحدة، ويعرض السجل الكامل عند حدوث خطأ ما.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>تثبيت الملحقات</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>الاستيثاق مطلوب لتثبيت ملحقات Corvellane المحددة لجميع مستخدمي هذا الحاسوب</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>إزالة الملحقات</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>الاستيثاق مطلوب لإزالة ملحقات Corvellane المحددة لجميع مستخدمي هذا الحاسوب</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>ن&amp;سخ</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>نسخ &amp;عنوان الرابط</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>التمرير إلى هنا</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>الحافة اليسرى</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>الأعلى</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>الحافة اليمنى</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>الأسفل</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>صفحة إلى اليسار</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>صفحة إلى الأعلى</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>صفحة إلى اليمين</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>صفحة إلى الأسفل</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>التمرير إلى اليسار</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>التمرير إلى الأعلى</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>التمرير إلى اليمين</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>التمرير إلى الأسفل</translation>
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

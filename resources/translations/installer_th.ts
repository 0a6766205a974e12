<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>เลือกทั้งหมด</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>ย้อนกลับ</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>ถัดไป</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>ปิด</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>เราจะนำคุณผ่านขั้นตอนที่จำเป็นในการใช้ซอฟต์แวร์นี้</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>ไม่พบผลิตภัณฑ์</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>ติดตั้งผลิตภัณฑ์ที่เลือกเรียบร้อยแล้ว</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>การติดตั้งไม่เสร็จสมบูรณ์</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>รายละเอียด</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>หากต้องการใช้ซอฟต์แวร์ต่อไป คุณต้องยอมรับเงื่อนไขของข้อตกลงการอนุญาตให้ใช้ซอฟต์แวร์</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>คลิก “ยอมรับ” เพื่อดำเนินการต่อ หรือคลิก “ปฏิเสธ” เพื่อยกเลิกและออกจากโปรแกรมติดตั้ง</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>อ่านสัญญาอนุญาต</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>ปฏิเสธ</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>ยอมรับ</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>คลิก “ติดตั้ง” เพื่อให้การติดตั้งเสร็จสมบูรณ์</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>ติดตั้ง</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>เพื่อให้โปรแกรมติดตั้งทำการเปลี่ยนแปลงได้ โปรดอนุญาตการเข้าถึง Finder ในการตั้งค่า</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>เปิดการตั้งค่า</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>คัดลอกไปยังคลิปบอร์ด</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>ความคืบหน้าของการติดตั้ง</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>ขั้นตอนปัจจุบัน</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>ออก</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>หน้าต่าง</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>ย่อเก็บ</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ซูม</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>ติดตั้งปลั๊กอินภาพและวิดีโอของ Corvellane</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>ปลั๊กอิน;ภาพถ่าย;วิดีโอ;ติดตั้ง;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>ตัวช่วยติดตั้งปลั๊กอิน Corvellane สำหรับโปรแกรมภาพถ่ายและวิดีโอ: แสดงข้อตกลงการอนุญาต ให้คุณเลือกผลิตภัณฑ์ ถามรหัสผ่านผู้ดูแลระบบเพียงครั้งเดียว และแสดงบันทึกทั้งหมดหากมีข้อผิดพลาด</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>ติดตั้งปลั๊กอิน</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>ต้องยืนยันตัวตนเพื่อติดตั้งปลั๊กอิน Corvellane ที่เลือกสำหรับผู้ใช้ทุกคนของคอมพิวเตอร์นี้</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>ลบปลั๊กอิน</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>ต้องยืนยันตัวตนเพื่อลบปลั๊กอิน Corvellane ที่เลือกสำหรับผู้ใช้ทุกคนของคอมพิวเตอร์นี้</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>คัดลอก (&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>คัดลอกที่อยู่ลิงก์ (&amp;L)</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>เลือกทั้งหมด</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>เลื่อนมาที่นี่</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>ขอบซ้าย</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>บนสุด</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>ขอบขวา</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>ล่างสุด</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>ไปทางซ้ายหนึ่งหน้า</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>ขึ้นหนึ่งหน้า</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>ไปทางขวาหนึ่งหน้า</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>ลงหนึ่งหน้า</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>เลื่อนไปทางซ้าย</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>เลื่อนขึ้น</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>เลื่อนไปทางขวา</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>เลื่อนลง</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Tümünü Seç</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Bu yazılımı kullanmak için gerekli adımlarda size yol gösterilecek.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Ürün bulunamadı</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Seçilen ürünler başarıyla kuruldu.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Kurulum başarıyla tamamlanamadı.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Ayrıntılar</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Yazılımı kullanmaya devam etmek için yazılım lisans sözleşmesinin koşullarını kabul etmelisiniz.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Devam etmek için “Kabul Et” düğmesine, vazgeçip kurucudan çıkmak için “Reddet” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Lisansı Oku</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Reddet</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Kabul Et</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Kurulumu tamamlamak için “Kur” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Kur</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Kurucunun değişiklik yapabilmesi için lütfen ayarlardan Finder erişimine izin verin.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Ayarları Aç</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Panoya Kopyala</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Kurulumun ilerlemesi</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Geçerli adım</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Pencere</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Simge Durumuna Küçült</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Büyüt/Küçült</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Corvellane görüntü ve video eklentilerini kurun</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>eklenti;fotoğraf;video;kur;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Fotoğraf ve video uygulamaları için Corvellane eklentilerini kuran bir sihirbaz: lisans sözleşmesini gösterir, ürünleri seçmenizi sağlar, yönetici parolasını bir kez sorar ve bir şeyler ters giderse tüm günlüğü gösterir.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Eklentileri kur</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Seçilen Corvellane eklentilerini bu bilgisayarın tüm kullanıcıları için kurmak kimlik doğrulaması gerektirir</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Eklentileri kaldır</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Seçilen Corvellane eklentilerini bu bilgisayarın tüm kullanıcıları için kaldırmak kimlik doğrulaması gerektirir</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopyala</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Bağlantı Adresini Kopyala</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tümünü Seç</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Buraya kaydır</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Sol kenar</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Üst</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Sağ kenar</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Sayfa sola</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Sayfa yukarı</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Sayfa sağa</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Sayfa aşağı</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Sola kaydır</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Yukarı kaydır</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Sağa kaydır</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Aşağı kaydır</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Pilih Semua</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Kembali</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Lanjut</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Anda akan dipandu melalui langkah-langkah yang diperlukan untuk menggunakan perangkat lunak ini.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Tidak ada produk yang ditemukan</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Produk yang dipilih telah berhasil dipasang.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Pemasangan tidak berhasil diselesaikan.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Rincian</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Untuk terus menggunakan perangkat lunak ini, Anda harus menyetujui ketentuan perjanjian lisensi perangkat lunak.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Klik “Setuju” untuk melanjutkan atau klik “Tidak Setuju” untuk membatalkan dan keluar dari program pemasang.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Baca Lisensi</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Tidak Setuju</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Setuju</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Klik “Pasang” untuk menyelesaikan pemasangan.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Pasang</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Agar program pemasang dapat melakukan perubahan, izinkan akses Finder di pengaturan.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Buka Pengaturan</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Salin ke Papan Klip</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Kemajuan pemasangan</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Langkah saat ini</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Keluar</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Jendela</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimalkan</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Perbesar/perkecil</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Pasang pengaya gambar dan video Corvellane</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>pengaya;foto;video;pasang;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Wisaya yang memasang pengaya Corvellane untuk aplikasi foto dan video: menampilkan perjanjian lisensi, memungkinkan Anda memilih produk, meminta kata sandi administrator satu kali, dan menampilkan log lengkap jika terjadi masalah.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Pasang pengaya</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Diperlukan autentikasi untuk memasang pengaya Corvellane yang dipilih bagi semua pengguna komputer ini</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Hapus pengaya</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Diperlukan autentikasi untuk menghapus pengaya Corvellane yang dipilih bagi semua pengguna komputer ini</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Salin</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Salin A&amp;lamat Tautan</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Pilih Semua</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Gulir ke sini</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Tepi kiri</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Atas</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Tepi kanan</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bawah</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Halaman ke kiri</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Halaman ke atas</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Halaman ke kanan</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Halaman ke bawah</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Gulir ke kiri</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Gulir ke atas</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Gulir ke kanan</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Gulir ke bawah</translation>
    </message>
</context>
</TS>

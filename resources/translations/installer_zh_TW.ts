<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>我們將引導您完成使用此軟體所需的步驟。</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>找不到產品</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>所選產品已成功安裝。</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>安裝未成功完成。</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細資訊</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>若要繼續使用此軟體，您必須同意軟體授權合約的條款。</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>請按「同意」以繼續，或按「不同意」以取消並結束安裝程式。</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>閱讀授權合約</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>不同意</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>同意</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>請按「安裝」按鈕以完成安裝。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安裝</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>若要讓安裝程式進行變更，請在設定中允許其取用 Finder。</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>開啟設定</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>複製到剪貼簿</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>安裝進度</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>目前步驟</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>視窗</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>縮放</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>安裝 Corvellane 影像與影片外掛程式</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>外掛程式;相片;影片;安裝;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>為相片與影片應用程式安裝 Corvellane 外掛程式的精靈：顯示授權合約，讓您選擇產品，只需輸入一次管理員密碼，並在發生問題時顯示完整記錄。</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>安裝外掛程式</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>要為這部電腦的所有使用者安裝所選的 Corvellane 外掛程式，需要進行身分驗證</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>移除外掛程式</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>要為這部電腦的所有使用者移除所選的 Corvellane 外掛程式，需要進行身分驗證</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>複製(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>複製連結位址(&amp;L)</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>捲動到這裡</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左邊緣</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>頂端</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右邊緣</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底端</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>向左翻頁</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>向上翻頁</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>向右翻頁</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>向下翻頁</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>向左捲動</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>向上捲動</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>向右捲動</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>向下捲動</translation>
    </message>
</context>
</TS>

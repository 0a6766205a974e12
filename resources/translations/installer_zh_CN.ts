<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
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
        <translation>关闭</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>我们将引导您完成使用此软件所需的步骤。</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>未找到产品</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>所选产品已成功安装。</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>安装未成功完成。</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>若要继续使用本软件，您必须同意软件许可协议的条款。</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>点击“同意”以继续，或点击“不同意”以取消并退出安装程序。</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>阅读许可协议</translation>
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
        <translation>点击“安装”按钮以完成安装。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>若要让安装程序进行更改，请在设置中允许其访问“访达”。</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>打开设置</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>复制到剪贴板</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>当前步骤</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>安装进度</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Corvellane Plugin Installer</source>
        <translation>Corvellane Plugin Installer</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
</context>
</TS>

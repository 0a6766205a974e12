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
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>安装 Corvellane 图像和视频插件</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>插件;照片;视频;安装;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>为照片和视频应用程序安装 Corvellane 插件的向导：显示许可协议，让您选择产品，只需输入一次管理员密码，并在出现问题时显示完整日志。</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>安装插件</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>要为此计算机的所有用户安装所选的 Corvellane 插件，需要进行身份验证</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>移除插件</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>要为此计算机的所有用户移除所选的 Corvellane 插件，需要进行身份验证</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>复制链接地址(&amp;L)</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>滚动到此处</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左边缘</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>顶部</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右边缘</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底部</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>向左翻页</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>向上翻页</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>向右翻页</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>向下翻页</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>向左滚动</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>向上滚动</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>向右滚动</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>向下滚动</translation>
    </message>
</context>
</TS>

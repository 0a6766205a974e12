<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>すべてを選択</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>このソフトウェアの使用に必要な手順をご案内します。</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>製品が見つかりません</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>選択した製品が正常にインストールされました。</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>インストールは正常に完了しませんでした。</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>このソフトウェアの使用を続けるには、ソフトウェア使用許諾契約の条件に同意する必要があります。</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>続けるには“同意する”をクリックしてください。キャンセルしてインストーラを終了するには“同意しない”をクリックしてください。</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>使用許諾契約を読む</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>同意しない</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>同意する</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>インストールを完了するには、“インストール”ボタンをクリックしてください。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>インストーラで変更を行うには、設定で Finder へのアクセスを許可してください。</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>設定を開く</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>クリップボードにコピー</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>現在のステップ</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>インストールの進行状況</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>ウインドウ</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>しまう</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>拡大／縮小</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Corvellane の画像・動画用プラグインをインストールします</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>プラグイン;写真;動画;インストール;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>写真と動画のアプリケーション用の Corvellane プラグインをインストールするウィザードです。使用許諾契約を表示し、製品を選択でき、管理者のパスワードを一度だけ求め、問題が起きたときは完全なログを表示します。</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>プラグインのインストール</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>選択した Corvellane プラグインをこのコンピューターのすべてのユーザー用にインストールするには認証が必要です</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>プラグインの削除</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>選択した Corvellane プラグインをこのコンピューターのすべてのユーザーから削除するには認証が必要です</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>リンクのアドレスをコピー(&amp;L)</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべてを選択</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>ここまでスクロール</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左端</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>先頭</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右端</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>末尾</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>前のページへ(左)</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>次のページへ(右)</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>次のページ</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>左へスクロール</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>上へスクロール</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>右へスクロール</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>下へスクロール</translation>
    </message>
</context>
</TS>

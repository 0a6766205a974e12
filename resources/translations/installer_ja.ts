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
        <source>Corvellane Plugin Installer</source>
        <translation>Corvellane Plugin Installer</translation>
    </message>
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
</TS>

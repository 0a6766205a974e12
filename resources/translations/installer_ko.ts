<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>이 소프트웨어를 사용하는 데 필요한 단계를 안내합니다.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>제품을 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>선택한 제품이 성공적으로 설치되었습니다.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>설치가 성공적으로 완료되지 않았습니다.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>자세히</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>소프트웨어를 계속 사용하려면 소프트웨어 사용권 계약의 조건에 동의해야 합니다.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>계속하려면 ‘동의’를 클릭하고, 취소하고 설치 프로그램을 끝내려면 ‘동의 안 함’을 클릭하십시오.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>사용권 계약 읽기</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>동의 안 함</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>동의</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>설치를 완료하려면 ‘설치’ 단추를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>설치</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>설치 프로그램이 변경할 수 있도록 설정에서 Finder 접근을 허용하십시오.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>설정 열기</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>클립보드에 복사</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>설치 진행 상황</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>현재 단계</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>끝내기</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>창</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>확대/축소</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Corvellane 이미지 및 비디오 플러그인 설치</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>플러그인;사진;비디오;설치;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>사진 및 비디오 프로그램용 Corvellane 플러그인을 설치하는 마법사입니다. 사용권 계약을 보여 주고, 제품을 선택할 수 있으며, 관리자 암호를 한 번만 묻고, 문제가 생기면 전체 기록을 보여 줍니다.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>플러그인 설치</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>이 컴퓨터의 모든 사용자를 위해 선택한 Corvellane 플러그인을 설치하려면 인증이 필요합니다</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>플러그인 제거</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>이 컴퓨터의 모든 사용자에게서 선택한 Corvellane 플러그인을 제거하려면 인증이 필요합니다</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>링크 주소 복사(&amp;L)</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>여기로 스크롤</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>왼쪽 끝</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>맨 위</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>오른쪽 끝</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>맨 아래</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>왼쪽 쪽으로</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>이전 쪽</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>오른쪽 쪽으로</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>다음 쪽</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>왼쪽으로 스크롤</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>위로 스크롤</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>오른쪽으로 스크롤</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>아래로 스크롤</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Microsoft Store 열기</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100% 무료, 제한 없음</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>광고 없음, 구독 없음</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>Microsoft Store 별점 5점</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>100% 무료 다운로드: YouTube MP3 음악 다운로더</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>YouTube 동영상에서 고음질 MP3 추출</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;100% 무료 앱&lt;/b&gt;으로 YouTube 음악을 빠르고 간편하게 MP3로 저장하세요.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>100% 무료 다운로드: </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>빠르고 간편하며 안정적</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> — 신뢰할 수 있는 파트너의 100% 무료 앱.&lt;br/&gt; Microsoft Store에서 다운로드할 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>앱을 제거하는 이유는 무엇인가요?</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>무료 프로그램을 찾고 있었습니다</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>품질이 만족스럽지 않습니다</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>필요한 기능이 없습니다</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>%1 제거</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>프로그램 설정, 사용자 지정 사전 설정 및 기록 삭제</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>설정 및 기록 삭제</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>선택 안 함</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>%1이(가) 실행 중입니다.
이 응용 프로그램을 닫으려면 [확인]을 클릭하고, 제거를 중단하려면 [취소]를 클릭하세요.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>설치된 응용 프로그램</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>打开 Microsoft Store</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>100% 免费，没有任何限制</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>无广告，无需订阅</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>Microsoft Store 五星好评</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>下载 100% 免费的 YouTube MP3 音乐下载器</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>从 YouTube 视频获取高品质 MP3</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;100% 免费的应用&lt;/b&gt;，快速轻松地将 YouTube 音乐保存为 MP3。</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>下载 100% 免费的 </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>快速、简单、可靠</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> ——来自我们信赖的合作伙伴的&lt;br/&gt;100% 免费应用，可在 Microsoft Store 下载。</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>您为什么要卸载此应用？</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>我在找免费的软件</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>质量不够好</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>缺少我需要的功能</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>卸载 %1</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>删除程序设置、自定义预设和历史记录</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>删除设置和历史记录</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>卸载</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>全不选</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>卸载</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>%1 正在运行。
请单击“确定”关闭此应用程序，或单击“取消”停止卸载。</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>已安装的应用程序</translation>
    </message>
</context>
</TS>

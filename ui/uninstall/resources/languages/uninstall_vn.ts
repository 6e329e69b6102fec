<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi_VN" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>Mở Microsoft Store</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>Miễn phí 100%, không giới hạn</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>Không quảng cáo, không cần gói đăng ký</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>Đánh giá 5 sao trên Microsoft Store</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>Tải xuống miễn phí 100% trình tải nhạc MP3 từ YouTube</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>MP3 chất lượng cao từ video YouTube</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;Ứng dụng miễn phí 100%&lt;/b&gt; để lưu nhạc từ YouTube sang MP3, nhanh chóng và đơn giản.</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>Tải xuống miễn phí 100% </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>Nhanh chóng, đơn giản và đáng tin cậy</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> — ứng dụng miễn phí 100% từ các đối tác&lt;br/&gt; đáng tin cậy của chúng tôi, có trên Microsoft Store.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Hủy</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>Tại sao bạn gỡ cài đặt ứng dụng?</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>Tôi cần phần mềm miễn phí</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>Chất lượng chưa đủ tốt</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>Thiếu tính năng</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>Gỡ cài đặt %1</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>Xóa cài đặt chương trình, thiết lập sẵn tùy chỉnh và lịch sử</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>Xóa cài đặt và lịch sử</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Chọn tất cả</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Gỡ cài đặt</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Bỏ chọn tất cả</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>Gỡ cài đặt</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>%1 đang chạy.
Vui lòng bấm OK để đóng ứng dụng này hoặc bấm Hủy để dừng việc gỡ cài đặt.</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Ứng dụng đã cài đặt</translation>
    </message>
</context>
</TS>

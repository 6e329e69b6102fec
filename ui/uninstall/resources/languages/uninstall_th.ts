<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en_US">
<context>
    <name>FvdOpenMsDlg</name>
    <message>
        <source>Open Microsoft Store</source>
        <translation>เปิด Microsoft Store</translation>
    </message>
    <message>
        <source>100% free, no limitations</source>
        <translation>ฟรี 100% ไม่มีข้อจำกัด</translation>
    </message>
    <message>
        <source>No ads, no subscriptions</source>
        <translation>ไม่มีโฆษณา ไม่ต้องสมัครสมาชิก</translation>
    </message>
    <message>
        <source>5-star rating on the Microsoft Store</source>
        <translation>คะแนน 5 ดาวใน Microsoft Store</translation>
    </message>
    <message>
        <source>Download 100% Free YouTube MP3 Music Downloader</source>
        <extracomment>&quot;YouTube MP3 Music Downloader&quot; is a description, not a name: translate it.</extracomment>
        <translation>ดาวน์โหลดฟรี 100% โปรแกรมดาวน์โหลดเพลง MP3 จาก YouTube</translation>
    </message>
    <message>
        <source>High-quality MP3 from YouTube videos</source>
        <translation>MP3 คุณภาพสูงจากวิดีโอ YouTube</translation>
    </message>
    <message>
        <source>&lt;b&gt;100 % free app&lt;/b&gt; for saving music from YouTube in MP3, fast and simple.</source>
        <translation>&lt;b&gt;แอปฟรี 100%&lt;/b&gt; สำหรับบันทึกเพลงจาก YouTube เป็น MP3 อย่างรวดเร็วและง่ายดาย</translation>
    </message>
    <message>
        <source>Download 100% Free </source>
        <extracomment>The name of the offered application follows.</extracomment>
        <translation>ดาวน์โหลดฟรี 100% </translation>
    </message>
    <message>
        <source>Fast, simple and reliable</source>
        <translation>รวดเร็ว ใช้ง่าย และเชื่อถือได้</translation>
    </message>
    <message>
        <source> — a 100% free app from our trusted&lt;br/&gt; partners, available on the Microsoft Store.</source>
        <extracomment>The name of the offered application stands before it, in bold.</extracomment>
        <translation> — แอปฟรี 100% จากพาร์ทเนอร์ที่เราไว้วางใจ&lt;br/&gt; พร้อมให้ดาวน์โหลดใน Microsoft Store</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ยกเลิก</translation>
    </message>
</context>
<context>
    <name>QuestionDlg</name>
    <message>
        <source>Why are you uninstalling the app?</source>
        <translation>เหตุใดคุณจึงถอนการติดตั้งแอปนี้</translation>
    </message>
    <message>
        <source>I was looking for a free program</source>
        <translation>ฉันกำลังหาโปรแกรมฟรี</translation>
    </message>
    <message>
        <source>The quality is not good enough</source>
        <translation>คุณภาพไม่ดีพอ</translation>
    </message>
    <message>
        <source>Missing features</source>
        <translation>ขาดฟีเจอร์ที่ต้องการ</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>ถอนการติดตั้ง %1</translation>
    </message>
</context>
<context>
    <name>Widget</name>
    <message>
        <source>Delete program settings, custom presets and history</source>
        <translation>ลบการตั้งค่าโปรแกรม พรีเซ็ตที่กำหนดเอง และประวัติ</translation>
    </message>
    <message>
        <source>Delete settings and history</source>
        <translation>ลบการตั้งค่าและประวัติ</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>เลือกทั้งหมด</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>ถอนการติดตั้ง</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>ไม่เลือกเลย</translation>
    </message>
    <message>
        <source>Uninstallation</source>
        <translation>การถอนการติดตั้ง</translation>
    </message>
    <message>
        <source>%1 is running.
Please click OK to close this application or click Cancel to exit.</source>
        <extracomment>%1 is an application&apos;s name. Cancel ends the removal, not the application.</extracomment>
        <translation>%1 กำลังทำงานอยู่
โปรดคลิก ตกลง เพื่อปิดแอปพลิเคชันนี้ หรือคลิก ยกเลิก เพื่อหยุดการถอนการติดตั้ง</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>แอปพลิเคชันที่ติดตั้งไว้</translation>
    </message>
</context>
</TS>

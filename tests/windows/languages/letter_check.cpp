#include "tests/windows/languages/letter_check.h"

#include <QAbstractButton>
#include <QGlyphRun>
#include <QLabel>
#include <QListWidget>
#include <QMap>
#include <QRawFont>
#include <QSet>
#include <QTextDocument>
#include <QTextLayout>
#include <QToolTip>

namespace {

// Japanese words mix three scripts, which must come from one font.
QChar::Script scriptOf(uint letter)
{
    const QChar::Script script = QChar::script(letter);
    const bool japanese = script == QChar::Script_Hiragana || script == QChar::Script_Katakana;
    return japanese ? QChar::Script_Han : script;
}

bool mayMix(QChar::Script script)
{
    return script <= QChar::Script_Common || script == QChar::Script_Latin ||
           script == QChar::Script_Greek;
}

void layOut(QTextLayout& layout)
{
    layout.beginLayout();
    while (layout.createLine().isValid()) {
    }
    layout.endLayout();
}

void checkText(QStringList& faults, const QFont& font, QString text)
{
    text.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(text, font);
    layOut(layout);
    QMap<QChar::Script, QSet<QString>> fonts;
    QString missing;
    int place = 0;
    const QVector<uint> letters = text.toUcs4();
    for (const uint letter : letters) {
        const int length = QChar::requiresSurrogates(letter) ? 2 : 1;
        const QList<QGlyphRun> runs = layout.glyphRuns(place, length);
        place += length;
        if (QChar::isSpace(letter))
            continue;
        for (const QGlyphRun& run : runs) {
            if (run.glyphIndexes().contains(0))
                missing += QStringLiteral(" U+") + QString::number(letter, 16);
            if (!mayMix(scriptOf(letter)))
                fonts[scriptOf(letter)].insert(run.rawFont().familyName());
        }
    }
    if (!missing.isEmpty())
        faults.append(
            QStringLiteral("\"%1\" in %2: no glyph for%3").arg(text, font.family(), missing));
    for (const QSet<QString>& used : qAsConst(fonts)) {
        if (used.size() > 1)
            faults.append(QStringLiteral("\"%1\" mixes %2")
                              .arg(text, QStringList(used.values()).join(QStringLiteral(", "))));
    }
}

QString plainText(const QLabel& label)
{
    if (!Qt::mightBeRichText(label.text()))
        return label.text();
    QTextDocument document;
    document.setHtml(label.text());
    return document.toPlainText();
}

} // namespace

QStringList letterFaults(const QWidget& window)
{
    QStringList faults;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible())
            continue;
        if (const auto* label = qobject_cast<const QLabel*>(widget))
            checkText(faults, label->font(), plainText(*label));
        else if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            checkText(faults, button->font(), button->text());
        else if (const auto* list = qobject_cast<const QListWidget*>(widget))
            for (int row = 0; row < list->count(); ++row)
                checkText(faults, list->font(), list->item(row)->text());
        checkText(faults, QToolTip::font(), widget->toolTip());
    }
    return faults;
}

#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

class QTranslator;

namespace lang {

// The translators of the process, which switch language together. A language is named by its short
// code, the two-letter suffix of the catalogue files ("de", "cn", "gr"), not by a locale.
//
// Threads: the GUI thread only. Ownership: the object belongs to its parent, the translators
// belong to the object.
class CTranslators : public QObject
{
    Q_OBJECT

public:
    // `directory` holds the compiled catalogues, `patterns` their file names with "%1" for the
    // code. `sourceLanguage` is the code of the language the texts are written in; it needs no
    // catalogue. `sourceLanguageName` and `supportedLanguagesKey` are stored and have no effect.
    CTranslators(QObject* parent, const QString& directory, const QString& sourceLanguage,
                 const QString& sourceLanguageName, const QString& supportedLanguagesKey,
                 const QStringList& patterns);

    // Switches the process to `code`. Returns true when every catalogue loaded, and always for
    // the source language; a catalogue that does not load leaves its texts in the source
    // language. The owners of existing widgets must translate them again.
    bool setLanguage(const QString& code);

private:
    QList<QTranslator*> translators;
    QString directory;
    QString currentPattern;
    QString sourceLanguage;
    QString sourceLanguageName;
    QString supportedLanguagesKey;
    QStringList patterns;
    QStringList supportedLanguages;
};

} // namespace lang

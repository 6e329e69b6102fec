#include "ui/common/lang/translators.h"

#include <QCoreApplication>
#include <QTranslator>

namespace lang {

CTranslators::CTranslators(QObject* parent, const QString& directory, const QString& sourceLanguage,
                           const QString& sourceLanguageName, const QString& supportedLanguagesKey,
                           const QStringList& patterns)
    : QObject(parent), directory(directory), currentPattern(patterns.value(0)),
      sourceLanguage(sourceLanguage), sourceLanguageName(sourceLanguageName),
      supportedLanguagesKey(supportedLanguagesKey), patterns(patterns)
{}

bool CTranslators::setLanguage(const QString& code)
{
    if (code == sourceLanguage) {
        for (QTranslator* translator : qAsConst(translators))
            QCoreApplication::removeTranslator(translator);
        translators.clear();
        return true;
    }

    // Installed once and loaded below, so that a later call replaces the catalogues in place.
    if (translators.isEmpty()) {
        for (int i = 0; i < patterns.size(); ++i) {
            auto* translator = new QTranslator(this);
            QCoreApplication::installTranslator(translator);
            translators.append(translator);
        }
    }

    bool allLoaded = true;
    for (int i = 0; i < translators.size(); ++i) {
        const QString fileName = QString(patterns.at(i)).replace(QLatin1String("%1"), code);
        if (!translators.at(i)->load(fileName, directory))
            allLoaded = false;
    }
    return allLoaded;
}

} // namespace lang

#pragma once
// A translation source file (.ts) as its messages, read with QXmlStreamReader, for the tests that check the translations.
#include <QFile>
#include <QList>
#include <QString>
#include <QStringList>
#include <QXmlStreamReader>

namespace TranslationFile {

struct Message {
    QString context;
    QString source;
    QString comment;
    bool numerus = false;
    bool unfinished = false;
    QStringList forms; // the translation, or its plural forms
};

inline QString path(const QString& language)
{
    return QStringLiteral(PARTITUDE_SOURCE_DIR "/translations/partitude_%1.ts").arg(language);
}

// Every message of the file; an empty list when it cannot be read.
inline QList<Message> read(const QString& file)
{
    QFile f(file);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    QList<Message> messages;
    QString context;
    QXmlStreamReader xml(&f);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto name = xml.name();
        if (name == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (name == QLatin1String("message")) {
            Message m;
            m.context = context;
            m.numerus = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
            messages << m;
        } else if (name == QLatin1String("source") && !messages.isEmpty()) {
            messages.last().source = xml.readElementText();
        } else if (name == QLatin1String("comment") && !messages.isEmpty()) {
            messages.last().comment = xml.readElementText();
        } else if (name == QLatin1String("translation") && !messages.isEmpty()) {
            Message& m = messages.last();
            // unfinished, vanished or obsolete: not a finished translation
            m.unfinished = xml.attributes().hasAttribute(QLatin1String("type"));
            if (!m.numerus)
                m.forms << xml.readElementText();
        } else if (name == QLatin1String("numerusform") && !messages.isEmpty()) {
            messages.last().forms << xml.readElementText();
        }
    }
    return xml.hasError() ? QList<Message>{} : messages;
}

} // namespace TranslationFile

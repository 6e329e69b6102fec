#pragma once

#include <QByteArray>
#include <QList>
#include <QtTest>

#include <cstdint>
#include <string>

// One report of a dialog.
struct RecordedEvent
{
    int code;
    QByteArray name;
    QByteArray value;

    bool operator==(const RecordedEvent& other) const
    {
        return code == other.code && name == other.name && value == other.value;
    }
};

using RecordedEvents = QList<RecordedEvent>;

namespace QTest {
template <>
inline char* toString(const RecordedEvents& events)
{
    QByteArray text;
    for (const RecordedEvent& event : events)
        text += QByteArray::number(event.code) + ' ' + event.name + " [" + event.value + "]; ";
    return qstrdup(text.constData());
}
} // namespace QTest

// SPDX-License-Identifier: MIT
#include "CalendarText.h"

#include "Literals.h"

namespace abissora {

namespace {

/// In any of the ways that one reader or another splits lines at.
bool endsLine(QChar c)
{
    static const QString ends = u"\n\r\v\f\x85\u2028\u2029"_s;
    return ends.contains(c);
}

/// A value of the type TEXT (section 3.3.11). Characters that no text may hold are left out.
QString escaped(const QString& text)
{
    QString value;
    const QString lines = QString(text).replace(u"\r\n"_s, u"\n"_s);
    for (const QChar c : lines) {
        if (c == u'\\' || c == u';' || c == u',')
            value += u'\\';
        if (endsLine(c))
            value += u"\\n"_s;
        else if (c.category() != QChar::Other_Control || c == u'\t')
            value += c;
    }
    return value;
}

/// A content line with its end, folded into lines of at most 75 octets (section 3.1), never within a character.
QByteArray folded(const QString& line)
{
    constexpr qsizetype longest = 75;
    QByteArray text;
    qsizetype length = 0;
    for (qsizetype i = 0; i < line.size();) {
        const bool isPair = line.at(i).isHighSurrogate() && i + 1 < line.size();
        const QByteArray character = QStringView(line).mid(i, isPair ? 2 : 1).toUtf8();
        if (length + character.size() > longest) {
            text += "\r\n ";
            length = 1;
        }
        text += character;
        length += character.size();
        i += isPair ? 2 : 1;
    }
    return text + "\r\n";
}

QString description(const Equipment& item)
{
    QStringList lines;
    lines.append(QString(item.brand + u' ' + item.model).trimmed());
    if (!item.serialNumber.isEmpty())
        lines.append(u"Numero Seriale: "_s + item.serialNumber);
    lines.removeAll(QString());
    return lines.join(u'\n');
}

} // namespace

QByteArray calendarText(const QList<Equipment>& equipment, const Calendar& calendar, Instant now,
                        const QString& version, WorkProgress* progress)
{
    const auto day = [](const QDate& date) { return date.toString(u"yyyyMMdd"_s); };
    const QString stamp = Calendar(QTimeZone::utc()).local(now).toString(u"yyyyMMdd'T'HHmmss'Z'"_s);
    QByteArray text;
    const auto add = [&text](const QString& line) { text += folded(line); };
    add(u"BEGIN:VCALENDAR"_s);
    add(u"VERSION:2.0"_s);
    add(u"PRODID:-//Abissora//Abissora "_s + escaped(version) + u"//IT"_s);
    add(u"CALSCALE:GREGORIAN"_s);
    WorkSteps steps(progress, equipment.size());
    for (const Equipment& item : equipment) {
        if (!steps.goesOn())
            break;
        if (!item.isActive)
            continue;
        const QDate due = calendar.local(item.nextServiceDate).date();
        add(u"BEGIN:VEVENT"_s);
        add(u"UID:tagliando-"_s + item.id.toString(QUuid::WithoutBraces).toLower() + u"@abissora.example"_s);
        add(u"DTSTAMP:"_s + stamp);
        add(u"DTSTART;VALUE=DATE:"_s + day(due));
        if (due.addDays(1).year() <= 9999)
            add(u"DTEND;VALUE=DATE:"_s + day(due.addDays(1)));
        add(u"SUMMARY:Tagliando: "_s + escaped(item.name));
        if (const QString make = description(item); !make.isEmpty())
            add(u"DESCRIPTION:"_s + escaped(make));
        add(u"CATEGORIES:"_s + escaped(item.displayTypeName()));
        add(u"TRANSP:TRANSPARENT"_s);
        add(u"END:VEVENT"_s);
    }
    add(u"END:VCALENDAR"_s);
    return text;
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "RegisterTables.h"

#include "CsvText.h"
#include "ImportFields.h"
#include "Literals.h"

namespace abissora {

namespace {

constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");

class TableWriter
{
public:
    TableWriter(ImportSubject subject, const Calendar& calendar, const QLocale& locale)
        : m_subject(subject)
        , m_calendar(calendar)
        // No others are understood everywhere.
        , m_decimalPoint(locale.decimalPoint() == u"," ? u',' : u'.')
        , m_separator(m_decimalPoint == u',' ? u';' : u',')
    {
        QStringList titles;
        for (const ImportField field : fieldsOf(subject))
            titles.append(titleOf(field, subject));
        m_text = csv::line(titles, m_separator);
    }

    void add(const Equipment& item, const Maintenance& record = {})
    {
        QStringList cells;
        for (const ImportField field : fieldsOf(m_subject))
            cells.append(m_subject == ImportSubject::Items ? cell(item, field) : cell(item, record, field));
        m_text += csv::line(cells, m_separator);
    }

    [[nodiscard]] QByteArray bytes() const { return byteOrderMark.toByteArray() + m_text.toUtf8(); }

private:
    [[nodiscard]] QString day(Instant instant) const { return m_calendar.local(instant).date().toString(Qt::ISODate); }

    [[nodiscard]] QString amount(double value) const
    {
        constexpr qsizetype group = 3;
        QString text = QString::number(value, 'f', QLocale::FloatingPointShortest);
        const qsizetype point = text.indexOf(u'.');
        if (point >= 0 && text.size() - point - 1 == group)
            text += u'0'; // "1.234" might be a thousand and more
        return text.replace(u'.', m_decimalPoint);
    }

    [[nodiscard]] QString cell(const Equipment& item, ImportField field) const
    {
        switch (field) {
        case ImportField::Name:
            return csv::defused(item.name);
        case ImportField::Type:
            return csv::defused(item.displayTypeName());
        case ImportField::Brand:
            return csv::defused(item.brand);
        case ImportField::Model:
            return csv::defused(item.model);
        case ImportField::SerialNumber:
            return csv::defused(item.serialNumber);
        case ImportField::PurchaseDate:
            return day(item.purchaseDate);
        case ImportField::LastService:
            return day(item.lastServiceDate);
        case ImportField::NextService:
            return day(item.nextServiceDate);
        case ImportField::State:
            return item.isActive ? u"Attivo"_s : u"Inattivo"_s;
        case ImportField::Notes:
            return csv::defused(item.notes);
        default:
            return {};
        }
    }

    [[nodiscard]] QString cell(const Equipment& item, const Maintenance& record, ImportField field) const
    {
        switch (field) {
        case ImportField::Date:
            return day(record.date);
        case ImportField::Kind:
            return rawValue(record.type);
        case ImportField::Description:
            return csv::defused(record.description);
        case ImportField::PerformedBy:
            return csv::defused(record.performedBy);
        case ImportField::Cost:
            return amount(record.cost);
        case ImportField::Outcome:
            if (!record.isCompleted)
                return {};
            return *record.isCompleted ? u"Avvenuta"_s : u"Non avvenuta"_s;
        case ImportField::NextService:
            return day(record.nextServiceDate);
        case ImportField::Notes:
            return csv::defused(record.notes);
        default:
            return cell(item, field);
        }
    }

    ImportSubject m_subject;
    Calendar m_calendar;
    QChar m_decimalPoint;
    QChar m_separator;
    QString m_text;
};

} // namespace

QByteArray itemsCsv(const QList<Equipment>& equipment, const Calendar& calendar, const QLocale& locale,
                    WorkProgress* progress)
{
    TableWriter table(ImportSubject::Items, calendar, locale);
    WorkSteps steps(progress, equipment.size());
    for (const Equipment& item : equipment) {
        if (!steps.goesOn())
            break;
        table.add(item);
    }
    return table.bytes();
}

QByteArray recordsCsv(const QList<Equipment>& equipment, const Calendar& calendar, const QLocale& locale,
                      WorkProgress* progress)
{
    TableWriter table(ImportSubject::Records, calendar, locale);
    WorkSteps steps(progress, equipment.size());
    for (const Equipment& item : equipment) {
        if (!steps.goesOn())
            break;
        for (const Maintenance& record : item.maintenanceHistory)
            table.add(item, record);
    }
    return table.bytes();
}

} // namespace abissora

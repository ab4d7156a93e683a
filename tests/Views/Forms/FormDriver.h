// SPDX-License-Identifier: MIT
#pragma once

#include "Alert.h"
#include "DateField.h"
#include "FormFields.h"
#include "Sheet.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

namespace abissora::test {

/// Fills a form in as a person does: with clicks and keys on what is visible. Parts are found by object name.
class FormDriver
{
public:
    explicit FormDriver(QWidget& form)
        : m_form(form)
    {}

    template <typename Widget>
    Widget& part(const char* name) const
    {
        auto* found = m_form.findChild<Widget*>(QLatin1String(name));
        if (found == nullptr || !found->isVisible() || !found->isEnabled())
            qFatal("no visible, enabled widget called %s", name);
        return *found;
    }

    bool shows(const char* name) const
    {
        const auto* found = m_form.findChild<QWidget*>(QLatin1String(name));
        return found != nullptr && found->isVisible();
    }

    QString text(const char* name) const { return part<QLabel>(name).text(); }

    /// Over what the field holds.
    void type(const char* name, const QString& text) const
    {
        auto& field = part<QWidget>(name);
        field.setFocus(Qt::TabFocusReason);
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        if (text.isEmpty())
            QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, text);
    }

    /// With the arrow keys, as a closed picker takes them.
    void choose(const QString& typeName) const
    {
        auto& picker = part<TypePicker>("type");
        const int index = picker.findText(typeName);
        if (index < 0)
            qFatal("the type is not offered");
        picker.setFocus(Qt::TabFocusReason);
        while (picker.currentIndex() < index)
            QTest::keyClick(&picker, Qt::Key_Down);
        while (picker.currentIndex() > index)
            QTest::keyClick(&picker, Qt::Key_Up);
    }

    QStringList offeredTypes() const
    {
        const auto& picker = part<TypePicker>("type");
        QStringList names;
        for (int i = 0; i < picker.count(); ++i)
            names.append(picker.itemText(i));
        return names;
    }

    QString chosenType() const { return part<TypePicker>("type").currentText(); }

    void click(const char* name) const { QTest::mouseClick(&part<QAbstractButton>(name), Qt::LeftButton); }
    void save() const { click("primary"); }
    void cancel() const { click("cancel"); }

    Alert* alert() const
    {
        for (Alert* alert : m_form.findChildren<Alert*>()) {
            if (alert->isVisible())
                return alert;
        }
        return nullptr;
    }

private:
    QWidget& m_form;
};

} // namespace abissora::test

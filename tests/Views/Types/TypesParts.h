// SPDX-License-Identifier: MIT
#pragma once

#include "Alert.h"
#include "EquipmentTypeFormView.h"
#include "EquipmentTypeManagementView.h"
#include "Gui.h"
#include "IconPicker.h"
#include "Literals.h"
#include "RegisterFixture.h"
#include "ScaledText.h"
#include "TypeList.h"

#include <QLineEdit>

/// Opening and reading the type screens.
namespace abissora::test {

/// A sheet over a window of the smallest size.
template <typename SheetClass>
struct OpenSheet
{
    template <typename... Arguments>
    explicit OpenSheet(Arguments&&... arguments)
        : sheet((window.resize(1000, 700), window.show(), arguments)..., &window)
    {
        sheet.open();
        sheet.activateWindow();
        settle();
    }

    QWidget window;
    SheetClass sheet;
};

/// Runs `check` with the application's font a quarter larger.
template <typename Check>
void withLargerText(Check check)
{
    const ScaledText larger(1.25);
    check();
}

/// The management screen.
struct OpenManagement : OpenSheet<EquipmentTypeManagementView>
{
    explicit OpenManagement(RegisterFixture& f)
        : OpenSheet(f.types, f.ids)
    {}

    QList<TypeRow*> rows() const
    {
        QList<TypeRow*> shown = sheet.findChild<TypeList*>()->rows();
        shown.removeIf([](const TypeRow* row) { return !row->isVisible(); });
        return shown;
    }

    QStringList names() const
    {
        QStringList names;
        for (const TypeRow* row : rows())
            names.append(row->type().name);
        return names;
    }

    TypeRow& row(const QString& name) const
    {
        for (TypeRow* row : rows()) {
            if (row->type().name == name)
                return *row;
        }
        qFatal("no row called %s", qPrintable(name));
    }

    void press(const QString& name, const char* button) const
    {
        auto& pressed = *row(name).findChild<QAbstractButton*>(QLatin1String(button));
        pressed.setFocus(Qt::TabFocusReason);
        QTest::keyClick(&pressed, Qt::Key_Return);
    }

    EquipmentTypeFormView* form() const
    {
        for (auto* form : sheet.findChildren<EquipmentTypeFormView*>()) {
            if (form->isVisible())
                return form;
        }
        return nullptr;
    }

    void search(const QString& text) const
    {
        type(sheet, "typeSearch", text);
        settle();
    }
};

/// As the list orders them.
inline QStringList defaultNames()
{
    return u"Altro,Bombola,Bussola,Cintura Zavorra,Computer Subacqueo,Erogatore,GAV,Kit Pronto Soccorso,"
           "Manometro,Maschera,Muta,Muta Stagna,Ossigeno,Pinne,Profondimetro,Torcia"_s.split(u',');
}

inline EquipmentTypeModel own(int id, const QString& name)
{
    return {SequentialIds::at(id), name, u"dive.reel"_s, u"teal"_s, 90, true};
}

inline const std::optional<EquipmentTypeModel> newType;

struct TypeForm : OpenSheet<EquipmentTypeFormView>
{
    TypeForm(RegisterFixture& f, const std::optional<EquipmentTypeModel>& type)
        : OpenSheet(f.types, f.ids, type)
    {}
};

inline EquipmentTypeModel boa()
{
    return {SequentialIds::at(900), u"Boa segnasub"_s, u"dive.compass"_s, u"orange"_s, 365, true};
}

inline DivingIconButton& cell(TypeForm& form, DivingIcons icon)
{
    return *form.sheet.findChild<DivingIconButton*>(rawValue(icon));
}

} // namespace abissora::test

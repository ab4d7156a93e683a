// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "EquipmentTypeFormView.h"
#include "EquipmentTypeManagementView.h"
#include "Literals.h"
#include "ScreenStage.h"
#include "SearchField.h"
#include "TypeManagement.h"

#include <QLineEdit>

namespace abissora::gallery {

namespace {

using Management = EquipmentTypeManagementView;

template <typename Sheet>
std::unique_ptr<Sheet> searched(std::unique_ptr<Sheet> sheet, const QString& text)
{
    auto* field = sheet->template findChild<SearchField*>();
    field->setText(text);
    Q_EMIT field->textEdited(text);
    return sheet;
}

std::unique_ptr<Management> many(test::RegisterFixture& f)
{
    QList<EquipmentTypeModel> types = f.types.getDefaultTypes();
    for (int i = 0; i < 400; ++i) {
        EquipmentTypeModel type = types.at(i % 16);
        type.id = f.ids.next();
        type.name += u" n. %1"_s.arg(i, 3, 10, '0'_L1);
        types.append(type);
    }
    types[0].name = u"Erogatore di riserva per immersioni in acque fredde con primo stadio a membrana "_s.repeated(3);
    f.types.setTypes(types);
    return std::make_unique<Management>(f.types, f.ids);
}

std::unique_ptr<EquipmentTypeFormView> newType(test::RegisterFixture& f)
{
    return std::make_unique<EquipmentTypeFormView>(f.types, f.ids, std::nullopt);
}

std::unique_ptr<EquipmentTypeFormView> editedType(test::RegisterFixture& f)
{
    return std::make_unique<EquipmentTypeFormView>(
        f.types, f.ids, EquipmentTypeModel{{}, u"Boa segnasub"_s, u"dive.compass"_s, u"orange"_s, 365, true});
}

std::unique_ptr<QWidget> deletion()
{
    return std::make_unique<Alert>(Alert::Kind::Question, u"Conferma Eliminazione"_s,
                                   deletionQuestion(EquipmentTypeModel{{}, u"Boa segnasub"_s, {}, {}, 365, true}));
}

} // namespace

QList<Scene> typeScenes()
{
    using Fixture = test::RegisterFixture;
    return {
        form(u"types"_s, [](Fixture& f) { return std::make_unique<Management>(f.types, f.ids); }),
        form(u"types-nothing-found"_s,
             [](Fixture& f) { return searched(std::make_unique<Management>(f.types, f.ids), u"boa"_s); }),
        form(u"types-many"_s, many),
        form(u"type-form-new"_s, newType),
        form(u"type-form-edit"_s, editedType),
        form(u"type-form-search"_s, [](Fixture& f) { return searched(editedType(f), u"om"_s); }),
        form(u"type-form-nothing-found"_s, [](Fixture& f) { return searched(editedType(f), u"xyz"_s); }),
        {u"type-delete"_s, deletion},
    };
}

} // namespace abissora::gallery

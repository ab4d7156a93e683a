// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "EquipmentTypeFormView.h"
#include "EquipmentTypeManagementView.h"
#include "ScreenStage.h"
#include "SearchField.h"

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

std::unique_ptr<Management> many(test::ScreenFixture& f)
{
    QList<EquipmentTypeModel> types = f.types.getDefaultTypes();
    for (int i = 0; i < 400; ++i) {
        EquipmentTypeModel type = types.at(i % 16);
        type.id = f.ids.next();
        type.name += QStringLiteral(" n. %1").arg(i, 3, 10, QLatin1Char('0'));
        types.append(type);
    }
    types[0].name =
        QStringLiteral("Erogatore di riserva per immersioni in acque fredde con primo stadio a membrana ").repeated(3);
    f.types.setTypes(types);
    return std::make_unique<Management>(f.context);
}

std::unique_ptr<EquipmentTypeFormView> newType(test::ScreenFixture& f)
{
    return std::make_unique<EquipmentTypeFormView>(f.context, std::nullopt);
}

std::unique_ptr<EquipmentTypeFormView> editedType(test::ScreenFixture& f)
{
    return std::make_unique<EquipmentTypeFormView>(
        f.context,
        EquipmentTypeModel{
            {}, QStringLiteral("Boa segnasub"), QStringLiteral("dive.compass"), QStringLiteral("orange"), 365, true});
}

std::unique_ptr<QWidget> deletion()
{
    auto alert = std::make_unique<Alert>();
    alert->setTitle(QStringLiteral("Conferma Eliminazione"));
    alert->setMessage(
        Management::deletionQuestion(EquipmentTypeModel{{}, QStringLiteral("Boa segnasub"), {}, {}, 365, true}));
    return alert;
}

} // namespace

QList<Scene> typeScenes()
{
    using Fixture = test::ScreenFixture;
    return {
        form(QStringLiteral("types"), [](Fixture& f) { return std::make_unique<Management>(f.context); }),
        form(QStringLiteral("types-nothing-found"),
             [](Fixture& f) { return searched(std::make_unique<Management>(f.context), QStringLiteral("boa")); }),
        form(QStringLiteral("types-many"), many),
        form(QStringLiteral("type-form-new"), newType),
        form(QStringLiteral("type-form-edit"), editedType),
        form(QStringLiteral("type-form-search"),
             [](Fixture& f) { return searched(editedType(f), QStringLiteral("om")); }),
        form(QStringLiteral("type-form-nothing-found"),
             [](Fixture& f) { return searched(editedType(f), QStringLiteral("xyz")); }),
        {QStringLiteral("type-delete"), deletion},
    };
}

} // namespace abissora::gallery

// SPDX-License-Identifier: MIT
#pragma once

#include "Almanac.h"
#include "EquipmentTypeViewModel.h"
#include "EquipmentViewModel.h"
#include "FilePanel.h"
#include "ImportPlan.h"
#include "LongWork.h"
#include "SettingsViewModel.h"

#include <QCoroTask>

class QWidget;

namespace abissora {

/// "Importa…" and "Esporta…", from the question for a file to the word of how it ended.
class ExchangeActions : public QObject
{
    Q_OBJECT

public:
    struct Tools
    {
        EquipmentViewModel& equipment;
        EquipmentTypeViewModel& types;
        const SettingsViewModel& settings;
        FilePanel& panel;
        LongWork& work;
        IdGenerator& ids;
        Almanac almanac;
        QString version; ///< of the program
    };

    /// What the tools refer to must outlive it.
    explicit ExchangeActions(const Tools& tools, QObject* parent = nullptr);

    /// Everything is shown over the window of `over`.
    void importFile(QWidget* over);
    /// Without asking which.
    void importPath(const QString& path, QWidget* over);
    void exportRegister(QWidget* over);

private:
    QCoro::Task<> readAndShow(QString path, QPointer<QWidget> over);
    QCoro::Task<> exportTo(SaveTarget target, QPointer<QWidget> over);
    [[nodiscard]] ImportContext presentContext() const;
    /// Whether the register has changed since the rows were compared with it.
    [[nodiscard]] bool isOutdated(const ImportPlan& plan) const;
    void store(const ImportPlan& plan, QWidget* over);

    Tools m_tools;
};

} // namespace abissora

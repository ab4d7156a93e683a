// SPDX-License-Identifier: MIT
#pragma once

#include "LongWork.h"
#include "StateContent.h"

#include <QObject>

namespace abissora {

struct ReadState
{
    StateContent content;
    QList<Equipment> present; ///< the register of now, as exact as a stored one
};

/// Reads kept states beside the interface, one after the other, that first which was asked for last.
class StateReader : public QObject
{
    Q_OBJECT

public:
    /// `work` must outlive it; `present` is the register of now.
    StateReader(LongWork& work, QList<Equipment> present, QObject* parent = nullptr);
    ~StateReader() override;

    /// Of very many that wait the oldest are forgotten: by then nobody looks at them any more. Begins later.
    void ask(const EarlierState& state);

Q_SIGNALS:
    void read(const abissora::EarlierState& state, const abissora::ReadState& result);

private:
    QCoro::Task<> readAsked();

    LongWork& m_work;
    QList<Equipment> m_present;
    std::optional<QList<Equipment>> m_presentAsStored; ///< once one was read
    QList<EarlierState> m_asked;
    bool m_isReading = false;
    std::shared_ptr<WorkProgress> m_progress = std::make_shared<WorkProgress>();
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QDeadlineTimer>
#include <optional>

namespace abissora {

/// Writes to a file descriptor what its reader takes at once, and never waits for it.
class ImmediateOutput
{
public:
    /// The descriptor stays the caller's and is left as it is: whoever else writes there may go on waiting.
    explicit ImmediateOutput(int descriptor);
    ~ImmediateOutput();
    Q_DISABLE_COPY_MOVE(ImmediateOutput)

    /// How many bytes the reader took, 0 when it takes none now; nothing when the output is broken.
    [[nodiscard]] std::optional<qsizetype> write(QByteArrayView bytes);

    /// What tells by poll(2) when the reader takes bytes again.
    [[nodiscard]] int descriptor() const { return m_descriptor; }
    /// Waits for that moment; false when it did not come in time.
    [[nodiscard]] bool waitForRoom(const QDeadlineTimer& deadline) const;

private:
    enum class Way {
        Plain,    ///< to where nobody reads meanwhile, such as a file
        Own,      ///< by a description of its own, which does not wait
        Socket,   ///< by calls that do not wait
        InPieces, ///< as much as there is room for whenever there is any
    };

    [[nodiscard]] Way findWay();

    int m_descriptor;
    Way m_way = Way::Plain;
};

} // namespace abissora

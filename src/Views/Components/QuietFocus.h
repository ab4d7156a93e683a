// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemView>

namespace abissora {

/// An item view that tells screen readers of its current item only while it has the focus. The toolkit's own announce
/// it as what has the focus whenever it changes, so that a field that is being typed in seems to lose it.
template <typename View>
class QuietFocus : public View
{
public:
    using View::View;

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override
    {
        if (View::hasFocus())
            View::currentChanged(current, previous);
        else
            QAbstractItemView::currentChanged(current, previous);
    }
};

} // namespace abissora

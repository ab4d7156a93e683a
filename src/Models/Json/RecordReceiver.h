// SPDX-License-Identifier: MIT
#pragma once

#include "Literals.h"
#include "RecordReader.h"

#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

namespace abissora::json {

/// Receives the parser's events. A value that does not fit is noted and skipped, not fatal at once: only when its
/// record ends is it clear that no later member of the same name replaces it.
class Receiver
{
public:
    Receiver(void* target, const Slot& slot, bool salvages = false)
        : m_root{&slot, target}
        , m_salvages(salvages)
    {}

    [[nodiscard]] std::optional<JsonError> takeError() { return std::move(m_error); }
    [[nodiscard]] const ReadNotes& notes() const { return m_notes; }
    /// Salvaging: the elements begun, and why some were left out.
    [[nodiscard]] qsizetype elements() const { return m_elements; }
    [[nodiscard]] QList<JsonError> takeDropped() { return std::move(m_dropped); }

    bool null()
    {
        return scalar("null", [](const Place& place) {
            if (place.slot->null)
                place.slot->null(place.target);
            return place.slot->null != nullptr;
        });
    }

    bool boolean(bool value)
    {
        return scalar(value ? "true" : "false", [value](const Place& place) {
            return place.slot->boolean && place.slot->boolean(place.target, value);
        });
    }

    bool number_integer(std::int64_t value)
    {
        return scalar("a number", [value](const Place& place) {
            return place.slot->integer && place.slot->integer(place.target, value);
        });
    }

    bool number_unsigned(std::uint64_t value)
    {
        if (value <= static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()))
            return number_integer(static_cast<std::int64_t>(value));
        return real(static_cast<double>(value));
    }

    bool number_float(double value, const std::string& /*text*/) { return real(value); }

    bool string(const std::string& value)
    {
        return scalar("a string", value, [this, &value](const Place& place) {
            return place.slot->string && place.slot->string(place.target, value, m_texts);
        });
    }

    bool binary(const nlohmann::json::binary_t& /*value*/) { return false; }

    bool start_object(std::size_t /*size*/)
    {
        return open("an object", [](const Slot& s) { return !s.members.empty(); });
    }

    bool key(const std::string& name)
    {
        if (m_skipped > 0)
            return true;
        Frame& frame = m_frames.back();
        const auto members = frame.place.slot->members;
        // Stored members mostly come in described order.
        std::size_t index = frame.index;
        for (std::size_t tried = 0; tried < members.size(); ++tried, ++index) {
            index = index < members.size() ? index : 0;
            if (members[index].name == name) {
                frame.index = index + 1;
                frame.member = index;
                frame.seen |= std::uint64_t(1) << index;
                std::erase_if(frame.faults, [index](const Fault& fault) { return fault.member == index; });
                return true;
            }
        }
        frame.member = unknown;
        m_notes.unknownMembers = true;
        return true;
    }

    bool end_object()
    {
        if (m_skipped == 0) {
            Frame& frame = m_frames.back();
            const auto members = frame.place.slot->members;
            for (std::size_t i = 0; i < members.size() && (m_salvages || frame.faults.empty()); ++i) {
                if (members[i].required && (frame.seen & (std::uint64_t(1) << i)) == 0) {
                    frame.member = i;
                    frame.faults.push_back({i, {path(), u"the member is missing"_s}});
                }
            }
        }
        return close();
    }

    bool start_array(std::size_t /*size*/)
    {
        return open("an array", [](const Slot& s) { return s.element != nullptr; });
    }

    bool end_array() { return close(); }

    bool parse_error(std::size_t /*position*/, const std::string& /*token*/, const nlohmann::detail::exception& error)
    {
        constexpr qsizetype longest = 300;
        QString message = QString::fromUtf8(error.what());
        if (const qsizetype end = message.indexOf("] "_L1); message.startsWith(u'[') && end > 0)
            message.remove(0, end + 2);
        if (message.size() > longest)
            message = message.left(longest) + u"…"_s;
        m_error = JsonError{{}, message};
        // The element in which it breaks off is none.
        if (m_salvages && m_frames.size() > 1)
            dropLast();
        return false;
    }

private:
    static constexpr qsizetype mostErrors = 1000;
    static constexpr std::size_t unknown = std::numeric_limits<std::size_t>::max();

    struct Place
    {
        const Slot* slot = nullptr; ///< null: a value that nothing takes
        void* target = nullptr;
    };

    struct Fault
    {
        std::size_t member = unknown;
        JsonError error;
    };

    struct Frame
    {
        Place place;
        std::size_t index = 0;        ///< list: elements begun; record: where the next member is looked for first
        std::size_t member = unknown; ///< record: the member whose value comes next
        std::uint64_t seen = 0;
        std::vector<Fault> faults{};
    };

    bool real(double value)
    {
        return scalar("a number", [value](const Place& place) {
            return place.slot->real && place.slot->real(place.target, value);
        });
    }

    Place next()
    {
        if (m_frames.empty())
            return m_root;
        Frame& frame = m_frames.back();
        const Slot& slot = *frame.place.slot;
        if (slot.element) {
            ++frame.index;
            if (m_salvages && m_frames.size() == 1) {
                ++m_elements;
                m_isDropped = false;
            }
            // Nothing replaces a bad element, so those after it cannot matter; a long bad list costs no memory.
            const bool matters = m_salvages || frame.faults.empty();
            return matters ? Place{slot.element, slot.append(frame.place.target)} : Place{};
        }
        if (frame.member == unknown)
            return {};
        const Member& member = slot.members[frame.member];
        return {member.slot, member.locate(frame.place.target)};
    }

    template <typename Take>
    bool scalar(const char* found, Take take)
    {
        return scalar(found, {}, take);
    }

    template <typename Take>
    bool scalar(const char* found, std::string_view text, Take take)
    {
        if (m_skipped > 0)
            return true;
        const Place place = next();
        if (place.slot && !take(place))
            note(mismatch(*place.slot, found, text));
        return true;
    }

    template <typename Fits>
    bool open(const char* found, Fits fits)
    {
        if (m_skipped > 0) {
            ++m_skipped;
            return true;
        }
        const Place place = next();
        if (place.slot && fits(*place.slot)) {
            if (place.slot->clear)
                place.slot->clear(place.target);
            m_frames.push_back({place});
            return true;
        }
        if (place.slot)
            note(mismatch(*place.slot, found, {}));
        m_skipped = 1;
        return true;
    }

    bool close()
    {
        if (m_skipped > 0) {
            --m_skipped;
            return true;
        }
        std::vector<Fault> faults = std::move(m_frames.back().faults);
        m_frames.pop_back();
        if (!m_salvages && faults.size() > 1)
            faults.resize(1);
        for (Fault& fault : faults)
            note(std::move(fault.error));
        return true;
    }

    void note(JsonError error)
    {
        if (m_frames.empty()) {
            m_error = m_error ? std::move(m_error) : std::move(error);
        } else if (m_salvages && m_frames.size() == 1) {
            dropLast();
            if (m_dropped.size() < mostErrors)
                m_dropped.append(std::move(error));
        } else if (auto& faults = m_frames.back().faults; std::ssize(faults) < mostErrors) {
            faults.push_back({m_frames.back().member, std::move(error)});
        }
    }

    /// Once for the element that was begun last.
    void dropLast()
    {
        if (!std::exchange(m_isDropped, true) && m_elements > 0)
            m_root.slot->dropLast(m_root.target);
    }

    JsonError mismatch(const Slot& slot, const char* found, std::string_view text) const
    {
        constexpr std::size_t longest = 60;
        QString message = u"expected %1, found %2"_s.arg(QLatin1String(slot.expected), QLatin1String(found));
        // A text of the right kind was refused for what it says.
        if (slot.string && !text.empty() && text.size() <= longest)
            message = u"expected %1, found \"%2\""_s.arg(QLatin1String(slot.expected),
                                                         QString::fromUtf8(text.data(), qsizetype(text.size())));
        return {path(), message};
    }

    QString path() const
    {
        QString path;
        for (const Frame& frame : m_frames) {
            const Slot& slot = *frame.place.slot;
            if (slot.element)
                path += u'[' + QString::number(frame.index - 1) + u']';
            else if (frame.member != unknown)
                path += u'.' + QString::fromUtf8(slot.members[frame.member].name.data(),
                                                 qsizetype(slot.members[frame.member].name.size()));
        }
        return path;
    }

    Place m_root;
    bool m_salvages;
    bool m_isDropped = false; ///< the element begun last
    qsizetype m_elements = 0;
    QList<JsonError> m_dropped;
    ReadNotes m_notes;
    SharedTexts m_texts;
    std::vector<Frame> m_frames;
    std::size_t m_skipped = 0; ///< depth inside a value that nothing takes
    std::optional<JsonError> m_error;
};

} // namespace abissora::json

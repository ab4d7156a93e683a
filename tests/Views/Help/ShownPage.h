// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentTest.h"
#include "Fakes.h"
#include "HelpPage.h"
#include "Literals.h"

namespace abissora::test {

inline const char* const everyKind = "Un *testo* in **grassetto**\nsu due righe.\n"
                                     "### Passi\n"
                                     "3. Primo\n"
                                     "7. Secondo\n"
                                     "9. Terzo con `codice`\n"
                                     "> Una [citazione](https://abissora.example/a?b=c&d=e).\n"
                                     "- Uno\n"
                                     "- Due\n"
                                     "---\n"
                                     "```\n"
                                     "**uno**\n"
                                     "due\n"
                                     "```\n";

inline HelpSection section(const QString& body)
{
    return {u"sezione-0"_s, u"Titolo"_s, body};
}

inline QString manyParagraphs()
{
    return u"Una riga di testo.\n\n"_s.repeated(80);
}

/// A page of its own.
struct ShownPage
{
    explicit ShownPage(const QString& body)
        : page(opener)
    {
        page.resize(600, 400);
        page.setSection(section(body));
    }

    RecordingOpener opener;
    HelpPage page;
};

inline QTextCursor at(const HelpPage& page, const QString& text)
{
    return page.document()->find(text, 0, QTextDocument::FindCaseSensitively);
}

inline void sendKey(HelpPage& page, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(&page, static_cast<Qt::Key>(key), modifiers);
}

} // namespace abissora::test

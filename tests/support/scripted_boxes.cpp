#include "support/scripted_boxes.h"

#include <QtTest/qtestcase.h>

using namespace Qt::StringLiterals;
using platform::Answer;

namespace support {

ScriptedBoxes::~ScriptedBoxes()
{
    const QString failures = verify();
    if (!failures.isEmpty())
        QTest::qFail(qPrintable(failures), __FILE__, __LINE__);
}

void ScriptedBoxes::expect(const QString& text, Answer answer)
{
    m_script.push_back({Kind::Question, text, answer, {}});
}

void ScriptedBoxes::expect(const QString& text)
{
    m_script.push_back({Kind::Notice, text, Answer::No, {}});
}

void ScriptedBoxes::expectChoice(const QString& title, const std::optional<QString>& choice)
{
    m_script.push_back({Kind::Choice, title, Answer::No, choice});
}

QString ScriptedBoxes::verify()
{
    for (const Step& step : m_script)
        m_failures << u"expected and not shown: \""_s + step.text + u'"';
    m_script.clear();
    return std::exchange(m_failures, {}).join(u'\n');
}

void ScriptedBoxes::information(const QString& text, const QString& title)
{
    shown << u"information: "_s + text;
    titles << title;
    next(Kind::Notice, text);
}

void ScriptedBoxes::warning(const QString& text, const QString& title)
{
    shown << u"warning: "_s + text;
    titles << title;
    next(Kind::Notice, text);
}

void ScriptedBoxes::stop(const QString& text, const QString& title)
{
    shown << u"stop: "_s + text;
    titles << title;
    next(Kind::Notice, text);
}

Answer ScriptedBoxes::ask(const QString& text, const QString& title, platform::Icon)
{
    shown << u"ask: "_s + text;
    titles << title;
    return next(Kind::Question, text).answer;
}

std::optional<QString> ScriptedBoxes::openFile(const QString& title, const QString&, const QString&)
{
    return choose(u"openFile: "_s, title);
}

std::optional<QStringList> ScriptedBoxes::openFiles(const QString& title, const QString&)
{
    const auto choice = choose(u"openFiles: "_s, title);
    return choice ? std::optional(choice->split(u'\n')) : std::nullopt;
}

std::optional<QString> ScriptedBoxes::saveFile(
    const QString& title, const QString&, const platform::FileSuggestion& suggestion)
{
    suggested << suggestion.folder + u'/' + suggestion.name;
    return choose(u"saveFile: "_s, title);
}

std::optional<QString> ScriptedBoxes::folder(const QString& title)
{
    return choose(u"folder: "_s, title);
}

std::optional<QString> ScriptedBoxes::inputText(const QString& title, const QString&)
{
    return choose(u"inputText: "_s, title);
}

ScriptedBoxes::Step ScriptedBoxes::next(Kind kind, const QString& text)
{
    if (m_always)
        return {kind, text, *m_always, {}};
    if (m_script.empty()) {
        m_failures << u"not expected: \""_s + text + u'"';
        return {kind, text, Answer::No, {}};
    }
    Step step = m_script.front();
    m_script.pop_front();
    if (step.kind == kind && step.text == text)
        return step;
    m_failures << u"expected \""_s + step.text + u"\", shown "_s
            + (step.kind == kind ? u"\""_s : u"as another kind of box \""_s) + text + u'"';
    return {kind, text, Answer::No, {}};
}

std::optional<QString> ScriptedBoxes::choose(const QString& what, const QString& title)
{
    shown << what + title;
    titles << title;
    return next(Kind::Choice, title).choice;
}

} // namespace support

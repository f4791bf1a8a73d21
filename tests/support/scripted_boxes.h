#pragma once

#include <deque>

#include <QStringList>

#include "platform/message_boxes.h"

namespace support {

/// Answers the program's boxes from a script, in order. A wrong, a missing and a left-over box are failures,
/// which verify() names; a test that forgets to call it fails when the boxes go.
class ScriptedBoxes final : public platform::MessageBoxes {
public:
    ScriptedBoxes() = default;
    ~ScriptedBoxes() override;

    /// A box with a Yes and a No button, and the answer to it.
    void expect(const QString& text, platform::Answer answer);
    /// A box that only tells: information or warning.
    void expect(const QString& text);
    /// A file, folder or input dialog of that title, and what the user chooses; no value is a cancel.
    void expectChoice(const QString& title, const std::optional<QString>& choice);

    /// From now on whatever box comes is answered so; shown tells which came.
    void answerAll(platform::Answer answer) { m_always = answer; }

    /// Empty when all went by the script; otherwise the failures, a line each. Starts anew afterwards.
    QString verify();

    void information(const QString& text, const QString& title) override;
    void warning(const QString& text, const QString& title) override;
    void stop(const QString& text, const QString& title) override;
    platform::Answer ask(const QString& text, const QString& title, platform::Icon icon) override;
    std::optional<QString> openFile(
        const QString& title, const QString& filter, const QString& folder) override;
    /// The choice has a line a file.
    std::optional<QStringList> openFiles(const QString& title, const QString& filter) override;
    std::optional<QString> saveFile(
        const QString& title, const QString& filter, const platform::FileSuggestion& suggestion) override;
    std::optional<QString> folder(const QString& title) override;
    std::optional<QString> inputText(const QString& title, const QString& label) override;

    /// All boxes shown, as "warning: text", for what a script can't say, with their titles.
    QStringList shown;
    QStringList titles;
    QStringList suggested; ///< where dialogs that save began, as "folder/name"

private:
    enum class Kind { Notice, Question, Choice };
    struct Step {
        Kind kind;
        QString text;
        platform::Answer answer = platform::Answer::No;
        std::optional<QString> choice;
    };

    Step next(Kind kind, const QString& text);
    std::optional<QString> choose(const QString& what, const QString& title);

    std::deque<Step> m_script;
    std::optional<platform::Answer> m_always;
    QStringList m_failures;
};

} // namespace support

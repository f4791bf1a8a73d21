#pragma once

#include "core/handover/page_screen.h"
#include "core/screen.h"

class QLineEdit;
class QPlainTextEdit;

namespace core {
class PhraseTarget;
}

namespace widgets {
class HeadingGrid;
}

namespace letters {

/// Puts a stored phrase into the text of the screen that asked for one.
class FrmEmailInsert : public core::Screen, public core::PageScreen {
    Q_OBJECT

public:
    explicit FrmEmailInsert(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override { readPhrases(); }
    void vocabulariesChanged() override { readPhrases(); }
    /// The form that asks.
    void openPage(const QString& page) override { m_caller = page; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void readPhrases();
    void showPhrase();
    void insert();
    core::PhraseTarget* target() const;

    QString m_caller;
    QLineEdit* txtFind = nullptr;
    widgets::HeadingGrid* m_phrases;
    QPlainTextEdit* m_preview = nullptr;
};

} // namespace letters

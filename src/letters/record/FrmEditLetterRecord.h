#pragma once

#include "core/record_editor.h"
#include "core/screen.h"
#include "widgets/field_set.h"

namespace letters {

/// Changes what the record says of one letter.
class FrmEditLetterRecord : public core::Screen {
    Q_OBJECT

public:
    explicit FrmEditLetterRecord(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    bool isTouched() const override { return m_editor.id() != 0 && m_fields.isTouched(); }
    void bookChanged() override;
    /// False when there is no such letter, or the person would rather keep what stands in the form.
    bool editLetter(qint64 letter);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void layOut();
    bool display(qint64 letter);
    void move(int step);
    void save();
    QList<core::ColumnEdit> edits() const;

    core::RecordEditor m_editor;
    widgets::FieldSet m_fields;
};

} // namespace letters

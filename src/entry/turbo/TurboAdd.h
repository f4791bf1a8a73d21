#pragma once

#include "core/screen.h"
#include "entry/turbo/turbo_fields.h"

namespace widgets {
class RecordList;
} // namespace widgets

namespace entry {

class TurboBoxes;
class TurboValues;

/// Enters a contact almost without typing: the list of fields at the left, what the current field can be in
/// the middle, what has been entered at the right. Each save adds a row; closing asks nothing, and what was
/// entered is there again when the form is opened next.
class TurboAdd : public core::Screen {
    Q_OBJECT

public:
    explicit TurboAdd(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    bool isTouched() const override;
    bool mayClose() override;
    bool mayEndProgram() override { return mayDiscard(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void layOut();
    void wire();

    const TurboField& field() const;
    QString target() const;
    void goToField(int row);
    void enterField();
    void goToValues();
    void step();
    void boxDone(const QString& box);

    void take(const QString& value);
    void takeCity(const QString& city);

    void clearEntry();
    void startEntry();
    void cancel();
    void save();
    bool mayBeNameless();
    bool store();

    widgets::RecordList* list1;
    TurboValues* m_values;
    TurboBoxes* m_boxes;
};

} // namespace entry

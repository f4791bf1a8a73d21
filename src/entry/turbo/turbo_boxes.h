#pragma once

#include "entry/form/form_values.h"
#include "entry/turbo/turbo_fields.h"
#include "widgets/field_set.h"

#include <QScrollArea>

class QGroupBox;
class QLabel;

namespace entry {

/// The right of the turbo form: the boxes that hold the entry, all of which may be typed into. It knows which
/// of the two addresses and which telephone box a person entered last.
class TurboBoxes : public QScrollArea {
    Q_OBJECT

public:
    explicit TurboBoxes(const widgets::FormKit::SizeOf& sizeOf, QWidget* parent = nullptr);

    void setDateFormat(const QString& pattern);
    /// Blanks all boxes; the home address is the active one again.
    void clear();
    FormValues values() const { return m_boxes.values(); }
    void show(const FormValues& values) { m_boxes.show(values); }
    bool isTouched() const { return m_boxes.isTouched(); }
    void keepAsLoaded() { m_boxes.keepAsLoaded(); }
    /// False when a date is none; the person is shown which.
    bool mendDates() const;
    /// Blanks the box that has the focus, if it holds something.
    void clearFocused();

    QString text(QStringView box) const;
    void setText(QStringView box, const QString& text);
    std::optional<QDate> date(QStringView box) const;
    void setDate(QStringView box, QDate date);

    Block activeBlock() const { return m_block; }
    /// Marks the box that a value goes to.
    void markTarget(QStringView box);
    void bringInSight(QStringView box);
    /// Gives the focus to a box as the program does: the address stays the one that a person chose.
    void focusBox(QStringView box);

    // The digit pad.
    QString phoneBox() const; ///< the one that was entered last
    void appendDigit(const QString& digit);
    void takeBack();

Q_SIGNALS:
    void boxDone(const QString& box); ///< Enter in a box
    void blockChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layOut(QWidget* page, const widgets::FormKit::SizeOf& sizeOf);
    void boxEntered(const QString& box);
    void activate(Block block);
    QWidget* box(QStringView name) const;
    QLabel* labelOf(QStringView name) const;

    widgets::FieldSet m_boxes;
    QGroupBox* m_homeGroup = nullptr;
    QGroupBox* m_workGroup = nullptr;
    QLabel* m_marked = nullptr;
    Block m_block = Block::Home;
    QString m_lastPhone;
    bool m_byProgram = false;
};

} // namespace entry

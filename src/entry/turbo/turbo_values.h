#pragma once

#include "core/context.h"
#include "entry/turbo/turbo_fields.h"

#include <QDate>
#include <QWidget>

class QCalendarWidget;
class QGroupBox;
class QLabel;

namespace widgets {
class RecordList;
} // namespace widgets

namespace entry {

class CityScopePanel;

/// The middle of the turbo form: what the current field can be, as a list, the cities of a country, a month
/// or the digits of a telephone. A click or Enter takes a value.
class TurboValues : public QWidget {
    Q_OBJECT

public:
    explicit TurboValues(core::Context& context, QWidget* parent = nullptr);

    /// Shows the values of a field; a calendar shows the month of `day`.
    void showField(const TurboField& field, const QString& homeCity, QDate day);
    /// Gives the focus to the values; false when there are none, and the field is to be typed.
    bool focusValues();
    /// The country whose cities are listed, or "All".
    QString country() const;

Q_SIGNALS:
    void taken(const QString& value);
    void dayClicked(QDate day);
    void dayTaken(QDate day); ///< with Enter or a double click
    void digitPressed(const QString& digit);
    void backPressed();
    void leftToFields(); ///< the left arrow
    void rightToBox(); ///< the right arrow

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layOut();
    void layOutCalendar();
    void layOutPad();
    void wire();
    void fillFrom(jet::Recordset rows);
    void fillFrom(const QStringList& values);
    void fillCities();
    void take(int row);

    core::Context& m_context;
    QLabel* LblListText;
    CityScopePanel* Frame1;
    widgets::RecordList* List2;
    QCalendarWidget* abc;
    QGroupBox* Framekeypad;
    QLabel* m_hint;
    TurboKind m_kind = TurboKind::List;
    QString m_column; ///< of List2, that holds the value
};

} // namespace entry

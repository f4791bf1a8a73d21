#pragma once

#include "letters/creator/letter_text.h"

#include <QWidget>

#include <optional>

class QLabel;
class QStackedLayout;

namespace core {
struct Context;
}

namespace widgets {
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace letters {

class PeoplePicker;

/// Those that a letter goes to, each with the address that it bears. The boxes show the one that is current
/// in the list; what is entered there is for this letter only.
class RecipientPanel : public QWidget {
    Q_OBJECT

public:
    explicit RecipientPanel(core::Context& context, QWidget* parent = nullptr);

    void load();
    void bookChanged();

    /// Those in the list; without any, whoever stands in the boxes.
    QList<Recipient> recipients() const;
    Recipient current() const;
    AddressType addressType() const;
    void setRecipients(const QList<Recipient>& recipients);
    /// Contacts of the book with their addresses, in this order; those that are gone are left out. Nothing
    /// when the person has stopped the reading of a long list.
    std::optional<QList<Recipient>> readContacts(const QList<qint64>& ids);
    void showPicker();

Q_SIGNALS:
    void changed(); ///< other people, or another name or address
    void currentChanged();

private:
    void layOut();
    void connectControls();
    void takeTypedName();
    void add(const QList<qint64>& ids);
    void add(const QList<Recipient>& recipients);
    void removeSelected();
    void chooseType();
    void fillList(int row);
    void showCurrent();
    void takeBoxes();

    core::Context& m_context;
    QList<Recipient> m_recipients;
    Recipient m_free; ///< in the boxes while the list is empty
    bool m_isAddressTyped = false; ///< one that the book does not have
    bool m_isShowing = false; ///< the boxes are being filled
    int m_type = 0; ///< of address, before another one is chosen
    QStackedLayout* m_pages;
    QWidget* m_fields;
    PeoplePicker* m_picker;
    widgets::FilledCombo* DBCperson = nullptr;
    widgets::HeadingGrid* list1;
    QLabel* m_count = nullptr;
    widgets::FilledCombo* Combo1 = nullptr;
    QList<QWidget*> m_boxes; ///< in the order of kBoxes
};

} // namespace letters

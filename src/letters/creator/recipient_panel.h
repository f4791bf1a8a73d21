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
    enum class Ticks { None, Shown };
    /// @param ticks shown where the letter goes only to those in the list that have one
    RecipientPanel(core::Context& context, Ticks ticks, QWidget* parent = nullptr);

    void load();
    void bookChanged();

    /// Those in the list, where ticks are shown those that have one; without any in the list, whoever stands
    /// in the boxes.
    QList<Recipient> recipients() const;
    Recipient current() const;
    AddressType addressType() const;
    /// @param areAsInBook whether names and addresses follow the book
    void setRecipients(const QList<Recipient>& recipients, bool areAsInBook = true);
    bool isAddressTyped() const { return m_isAddressTyped; } ///< one that the book does not have
    bool isTyped() const; ///< an address, or somebody who is not in the book
    void setAddressType(AddressType type); ///< of those that are put into the list from now on
    /// Puts a name into the list that was only typed so far, with all contacts that bear it.
    /// @return how many contacts those are
    qsizetype takeTypedName();
    /// Contacts of the book with their addresses, in this order; those that are gone are left out. Nothing
    /// when the person has stopped the reading of a long list.
    std::optional<QList<Recipient>> readContacts(const QList<qint64>& ids);
    void showPicker();

Q_SIGNALS:
    void changed(); ///< other people, or another name or address
    void currentChanged();
    void typed(); ///< by a person, into the boxes

private:
    void layOut();
    void connectControls();
    void add(const QList<qint64>& ids);
    void add(const QList<Recipient>& recipients);
    void removeSelected();
    void chooseType();
    void fillList(int row);
    void showCurrent();
    void tellCount();
    void takeBox(size_t box);
    void readAddresses();

    core::Context& m_context;
    Ticks m_ticks;
    QList<Recipient> m_recipients;
    QList<bool> m_wanted; ///< for each of them, whether the letter goes there
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

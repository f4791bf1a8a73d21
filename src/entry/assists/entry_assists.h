#pragma once

#include "core/context.h"
#include "entry/assists/assist_panel.h"
#include "entry/assists/typed_word.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

#include <array>

class QTabWidget;

namespace entry {

/// What an entry form fills in by itself while a person types: gender by first name, spouse names by gender,
/// state and codes by city, the company from its parts, words from their beginnings, and the keys of the key
/// pad.
class EntryAssists : public QObject {
    Q_OBJECT

public:
    EntryAssists(QWidget* form, QTabWidget* pages, core::Context& context);

    void takePick(AssistPanel::Tab tab, const QString& value, const QString& country);
    void takeScope(const QString& country);
    void pressKey(const QString& caption);
    /// While a record is put on the form, nothing is looked up.
    void setQuiet(bool quiet) { m_quiet = quiet; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct AddressSet {
        QStringView page;
        QStringView city;
        QStringView state;
        QStringView country;
        QStringView pin;
        QStringView std;
    };
    static const std::array<AddressSet, 3>& addressSets();
    const AddressSet* setOfCity(const QString& cityControl) const;
    const AddressSet& currentSet() const;

    void guessSex();
    void lookUpAddress(const AddressSet& set);
    void composeCompany();
    void companyTyped();
    bool autotextKey(QWidget* field, int key, const QString& text);
    void lookUpCommonWords();
    void completeWord(const QString& word);
    void focusEntered(QWidget* field);
    void focusLeft(QWidget* field);

    QString text(QStringView control) const;
    void setText(QStringView control, const QString& value);

    QWidget* m_form;
    QTabWidget* m_pages;
    core::Context& m_context;
    QPointer<QWidget> m_phoneField; ///< the one that had the focus last
    QPointer<QWidget> m_wordField;
    QString m_textAtEntry; ///< of the field with the focus, to see whether it was changed
    TypedWord m_typedWord;
    QElapsedTimer m_sinceClick; ///< on a common word
    bool m_quiet = false;
};

} // namespace entry

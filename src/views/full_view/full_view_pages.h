#pragma once

#include <QList>
#include <QTabWidget>

namespace core {
struct Context;
}

namespace views {

class ContactPage;

/// The tabs of the full view on which a contact can be read: first all that is filled, as flat text, then
/// page by page each field in its place.
class FullViewPages : public QTabWidget {
    Q_OBJECT

public:
    /// `browsesOthers` makes room for what only other address books have.
    explicit FullViewPages(core::Context& context, bool browsesOthers = false, QWidget* parent = nullptr);

    /// Whether a contact of the program's own book is shown, or one of another.
    void showBook(bool own);
    /// What the fields are called that the person has named.
    void showUserLabels(const QStringList& labels);
    ContactPage* summary() const { return m_summary; }

private:
    QWidget* addPage(const QString& name, const QString& title, QStringView icon);
    void layOutDetails();
    void layOutAddresses();
    void layOutTelephones(bool browsesOthers);
    void layOutMail();
    void layOutFamily();

    ContactPage* m_summary;
    QList<QWidget*> m_ofOthers; ///< rows that only other address books fill
};

} // namespace views

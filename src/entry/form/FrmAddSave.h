#pragma once

#include "core/screen.h"

class QCheckBox;
class QPushButton;

namespace entry {

/// "Save as" of an entry form: puts what stands in the form named by CallerForm into the mail client's
/// contacts, the second address book, vCard files and the book itself, as ticked.
class FrmAddSave : public core::Screen {
    Q_OBJECT

public:
    explicit FrmAddSave(core::Context& context, QWidget* parent = nullptr);

    void load() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void layOut();
    void allowSave();
    void save();
    void cancel();

    struct Entered;
    struct TargetRow;
    static const TargetRow kTargets[];
    bool toBook(Entered& entered);
    bool toMailClient(Entered& entered);
    bool toAddressBook(Entered& entered);
    bool toCardFolder(Entered& entered);
    bool toDesktop(Entered& entered);
    bool toFile(const Entered& entered, const QString& folder);

    QString m_caller; ///< the form that asked
    QList<QCheckBox*> m_boxes; ///< in the order of the targets
    QPushButton* m_save = nullptr;
};

} // namespace entry

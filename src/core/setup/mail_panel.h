#pragma once

#include "core/setup_panel.h"
#include "platform/mail_account.h"

class QLineEdit;
class QPushButton;

namespace widgets {
class FilledCombo;
class FormKit;
} // namespace widgets

namespace setup {

/// The account by which mail leaves. The password goes to the secret store of the desktop and is never shown
/// again.
class MailPanel : public core::SetupPanel {
    Q_OBJECT

public:
    explicit MailPanel(core::Context& context, QWidget* parent = nullptr);

    void refresh() override;
    bool isTouched() const override;

private:
    void layOut(widgets::FormKit& form);
    platform::MailAccount entered() const;
    platform::MailSecurity security() const;
    void show(const platform::MailAccount& account);
    void showPlace(platform::PasswordPlace place);
    void showUsualPort();
    void save();
    void tellSaved(platform::PasswordPlace place);
    void sendTest();
    void remove();
    QString text(const QString& control) const;

    platform::MailAccounts& m_accounts;
    QLabel* m_hint;
    widgets::FilledCombo* cboMailSecurity = nullptr;
    QLineEdit* txtMailPassword = nullptr;
    QPushButton* cmdMailTest = nullptr;
    QPushButton* cmdMailRemove = nullptr;
    platform::MailAccount m_shown; ///< as it was read
    platform::MailSecurity m_lastSecurity = platform::MailSecurity::Tls;
};

} // namespace setup

#include "core/setup/mail_panel.h"

#include "platform/message_boxes.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"

#include <QCoreApplication>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;
using platform::MailAccount;
using platform::MailSecurity;
using platform::PasswordPlace;
using widgets::child;

namespace setup {

namespace {

constexpr int kWidth = 560;
constexpr int kMaxText = 200;

struct SecurityChoice {
    MailSecurity security;
    const char* caption;
};
constexpr SecurityChoice kSecurities[] = {
    {MailSecurity::Tls, QT_TRANSLATE_NOOP("setup", "TLS")},
    {MailSecurity::StartTls, QT_TRANSLATE_NOOP("setup", "STARTTLS")},
    {MailSecurity::None, QT_TRANSLATE_NOOP("setup", "None (a server on this computer)")},
};

QString captionOf(MailSecurity security)
{
    const auto* found = std::find_if(std::begin(kSecurities), std::end(kSecurities),
        [security](const SecurityChoice& each) { return each.security == security; });
    return QCoreApplication::translate("setup", found->caption);
}

struct LineRow {
    QStringView control;
    QString MailAccount::*value;
};
constexpr LineRow kLines[] = {
    {u"txtMailName", &MailAccount::name},
    {u"txtMailAddress", &MailAccount::address},
    {u"txtMailServer", &MailAccount::server},
    {u"txtMailUser", &MailAccount::user},
};

} // namespace

MailPanel::MailPanel(core::Context& context, QWidget* parent)
    : core::SetupPanel(context, parent)
    , m_accounts(context.services.mailAccounts)
    , m_hint(core::makeHint(u"lblMailHint"_s))
{
    widgets::FormKit form(this);
    layOut(form);
    setMaximumWidth(kWidth);
    QStringList captions;
    for (const SecurityChoice& each : kSecurities)
        captions << captionOf(each.security);
    cboMailSecurity->setValues(captions);
    txtMailPassword->setEchoMode(QLineEdit::Password);
    auto* port = child<QLineEdit>(this, u"txtMailPort"_s);
    port->setValidator(new QIntValidator(1, 65535, port));
    for (auto* line : findChildren<QLineEdit*>()) {
        line->setMaxLength(kMaxText);
        connect(line, &QLineEdit::textEdited, m_hint, &QLabel::clear);
    }
    show({});
    connect(cboMailSecurity, &QComboBox::currentIndexChanged, this, &MailPanel::showUsualPort);
    connect(child<QPushButton>(this, u"cmdMailSave"_s), &QPushButton::clicked, this, &MailPanel::save);
    connect(cmdMailTest, &QPushButton::clicked, this, &MailPanel::sendTest);
    connect(cmdMailRemove, &QPushButton::clicked, this, &MailPanel::remove);
}

void MailPanel::layOut(widgets::FormKit& form)
{
    form.group(tr("Your messages come from"))
        .line(u"txtMailName"_s, tr("&Name"))
        .line(u"txtMailAddress"_s, tr("&E-mail address"))
        .group(tr("They leave by the mail server"))
        .line(u"txtMailServer"_s, tr("Ser&ver"))
        .hint(tr("Its name, such as smtp.example.com. Your mail provider tells it."))
        .fixedCombo(u"cboMailSecurity"_s, tr("Encr&yption"));
    cboMailSecurity = static_cast<widgets::FilledCombo*>(form.last());
    form.line(u"txtMailPort"_s, tr("&Port"))
        .line(u"txtMailUser"_s, tr("&User"))
        .hint(tr("Often the e-mail address. Empty for a server that asks for none."))
        .line(u"txtMailPassword"_s, tr("Pass&word"));
    txtMailPassword = static_cast<QLineEdit*>(form.last());
    form.button(u"cmdMailSave"_s, tr("&Save"), u"save", tr("Keep the account on this computer"))
        .button(u"cmdMailTest"_s, tr("Send a &test"), u"envelope",
            tr("Send a message to your own address, with what is entered here"));
    cmdMailTest = static_cast<QPushButton*>(form.last());
    form.button(u"cmdMailRemove"_s, tr("&Remove"), u"delete", tr("Forget the account and its password"));
    cmdMailRemove = static_cast<QPushButton*>(form.last());
    form.wide(m_hint->objectName(), tr("Hint"), m_hint);
}

QString MailPanel::text(const QString& control) const
{
    return child<QLineEdit>(this, control)->text().trimmed();
}

MailSecurity MailPanel::security() const
{
    const int row = std::max(0, cboMailSecurity->currentIndex());
    return kSecurities[row].security;
}

MailAccount MailPanel::entered() const
{
    MailAccount account;
    for (const LineRow& row : kLines)
        account.*row.value = text(row.control.toString());
    account.port = text(u"txtMailPort"_s).toInt();
    account.security = security();
    return account;
}

void MailPanel::show(const MailAccount& account)
{
    for (const LineRow& row : kLines)
        widgets::setTextOf(child<QLineEdit>(this, row.control.toString()), account.*row.value);
    m_lastSecurity = account.security;
    cboMailSecurity->setText(captionOf(account.security));
    widgets::setTextOf(child<QLineEdit>(this, u"txtMailPort"_s), QString::number(account.port));
    txtMailPassword->clear();
    m_shown = account;
}

void MailPanel::refresh()
{
    const std::optional<MailAccount> account = m_accounts.account();
    show(account.value_or(MailAccount()));
    m_hint->clear();
    cmdMailRemove->setEnabled(account.has_value());
    m_accounts.findPassword([self = QPointer(this)](PasswordPlace place) {
        if (self)
            self->showPlace(place);
    });
}

void MailPanel::showPlace(PasswordPlace place)
{
    switch (place) {
    case PasswordPlace::SecretStore:
        txtMailPassword->setPlaceholderText(tr("Kept in the secret store of the desktop"));
        break;
    case PasswordPlace::Memory:
        txtMailPassword->setPlaceholderText(tr("Known until the program ends"));
        break;
    case PasswordPlace::Nowhere: txtMailPassword->setPlaceholderText({}); break;
    }
}

// A port of one's own stays; the usual one follows the encryption.
void MailPanel::showUsualPort()
{
    const MailSecurity before = std::exchange(m_lastSecurity, security());
    if (text(u"txtMailPort"_s).toInt() == platform::usualPort(before))
        widgets::setTextOf(
            child<QLineEdit>(this, u"txtMailPort"_s), QString::number(platform::usualPort(security())));
}

bool MailPanel::isTouched() const
{
    return entered() != m_shown || !txtMailPassword->text().isEmpty();
}

void MailPanel::save()
{
    const MailAccount account = entered();
    const QString fault = platform::faultOf(account);
    const platform::MailResult stored
        = fault.isEmpty() ? m_accounts.store(account) : platform::MailResult{fault};
    if (!stored)
        return m_hint->setText(stored.cause);
    const QString password = txtMailPassword->text();
    show(account);
    cmdMailRemove->setEnabled(true);
    const auto tell = [self = QPointer(this)](PasswordPlace place) {
        if (self)
            self->tellSaved(place);
    };
    if (password.isEmpty())
        m_accounts.findPassword(tell);
    else
        m_accounts.keepPassword(password, tell);
}

void MailPanel::tellSaved(PasswordPlace place)
{
    showPlace(place);
    playSound(u"save");
    if (place == PasswordPlace::Memory)
        m_hint->setText(tr("Saved. No secret store runs on this desktop, so the password is known until the "
                           "program ends, and is asked for after the next start."));
    else if (place == PasswordPlace::Nowhere && !m_shown.user.isEmpty())
        m_hint->setText(tr("Saved. Mail can be sent when the password is entered."));
    else
        m_hint->setText(tr("Saved."));
}

void MailPanel::sendTest()
{
    const QString fault = platform::faultOf(entered());
    if (!fault.isEmpty())
        return m_hint->setText(fault);
    cmdMailTest->setEnabled(false);
    m_hint->setText(tr("A test is on its way to %1 ...").arg(entered().address));
    const QString password = txtMailPassword->text();
    m_accounts.sendTest(entered(), password.isEmpty() ? std::nullopt : std::optional(password),
        [self = QPointer(this)](bool sent, const QString& words) {
            if (!self)
                return;
            self->cmdMailTest->setEnabled(true);
            self->m_hint->setText(
                (sent ? tr("The test was sent. The mail server said: %1") : tr("The test was not sent. %1"))
                    .arg(words));
        });
}

void MailPanel::remove()
{
    core::Context& all = context();
    if (all.services.boxes.ask(
            tr("Do you want to remove the mail account? Messages in the outbox stay there."),
            all.shared.AppTitle, platform::Icon::Warning)
        != platform::Answer::Yes)
        return;
    const platform::MailResult removed = m_accounts.store(std::nullopt);
    if (!removed)
        return m_hint->setText(removed.cause);
    refresh();
    m_hint->setText(tr("The account was removed."));
}

} // namespace setup

#include "platform/mail_preview.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr QSize kSize{680, 520};

QString tr(const char* text)
{
    return QCoreApplication::translate("platform", text);
}

QString shownText(const MailItem& item)
{
    if (!item.Body.isEmpty() || item.HTMLBody.isEmpty())
        return item.Body;
    QTextDocument formatted;
    formatted.setHtml(item.HTMLBody);
    return formatted.toPlainText();
}

QString attachmentNames(const MailItem& item)
{
    QStringList names;
    for (const QString& path : item.Attachments)
        names << QFileInfo(path).fileName();
    return names.join(u"; "_s);
}

} // namespace

PreviewChoice showMailPreview(const MailItem& item, QWidget* parent)
{
    QDialog dialog(parent ? parent : QApplication::activeWindow());
    dialog.setObjectName(u"MailPreview"_s);
    dialog.setWindowTitle(tr("Preview of the message"));
    dialog.resize(kSize);
    auto* head = new QFormLayout;
    const struct {
        const char* name;
        QString label;
        QString text;
    } lines[] = {{"txtTo", tr("&To"), item.To}, {"txtCC", tr("&CC"), item.CC},
        {"txtBCC", tr("&BCC"), item.BCC}, {"txtSubject", tr("S&ubject"), item.Subject},
        {"txtAttachments", tr("&Attachments"), attachmentNames(item)}};
    for (const auto& line : lines) {
        if (line.text.isEmpty() && line.text != item.To)
            continue;
        auto* shown = new QLineEdit(line.text);
        shown->setObjectName(QLatin1StringView(line.name));
        shown->setReadOnly(true);
        shown->setCursorPosition(0);
        head->addRow(line.label, shown);
    }
    auto* body = new QPlainTextEdit(shownText(item));
    body->setObjectName(u"txtBody"_s);
    body->setAccessibleName(tr("Text of the message"));
    body->setReadOnly(true);
    body->setTabChangesFocus(true);

    PreviewChoice choice = PreviewChoice::KeepAsDraft;
    auto* buttons = new QHBoxLayout;
    const auto button
        = [&](const QString& name, const QString& text, const QString& toolTip, PreviewChoice chosen) {
              auto* made = new QPushButton(text);
              made->setObjectName(name);
              made->setToolTip(toolTip);
              QObject::connect(made, &QPushButton::clicked, &dialog, [&dialog, &choice, chosen] {
                  choice = chosen;
                  dialog.accept();
              });
              buttons->addWidget(made);
              return made;
          };
    buttons->addStretch(1);
    button(u"cmdSend"_s, tr("&Send"), tr("Send it now"), PreviewChoice::Send)->setDefault(true);
    button(u"cmdKeep"_s, tr("&Keep in the outbox"),
        tr("It leaves with the next message that is sent, or at the next start"),
        PreviewChoice::KeepInOutbox);
    button(
        u"cmdDraft"_s, tr("&Do not send"), tr("Keep it among the drafts (Esc)"), PreviewChoice::KeepAsDraft);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addLayout(head);
    layout->addWidget(body, 1);
    layout->addLayout(buttons);
    dialog.exec();
    return choice;
}

} // namespace platform

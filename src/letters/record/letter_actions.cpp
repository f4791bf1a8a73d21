#include "letters/record/letter_actions.h"

#include "core/contact_lookups.h"
#include "core/date_patterns.h"
#include "core/handover/contact_screen.h"
#include "core/handover/letter_screen.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "jet/date_text.h"
#include "letters/record/FrmEditLetterRecord.h"
#include "letters/record/record_statements.h"
#include "output/preview/FrmReportViewer.h"
#include "platform/message_boxes.h"
#include "platform/sounds.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

QString say(const char* text)
{
    return QCoreApplication::translate("letters", text);
}

void noneChosen(core::Context& context)
{
    context.services.boxes.information(say("Record not selected"), context.shared.AppTitle);
}

} // namespace

bool deleteLetters(core::Context& context, const QList<qint64>& ids)
{
    if (ids.isEmpty()) {
        noneChosen(context);
        return false;
    }
    const QString question = ids.size() == 1
        ? say("Are you sure you want to delete this record?")
        : say("Are you sure you want to delete these %1 letters?").arg(ids.size());
    if (context.services.boxes.ask(question, context.shared.AppTitle, platform::Icon::Warning)
        != platform::Answer::Yes)
        return false;
    {
        const jet::Step step(
            context.data, ids.size() == 1 ? say("deleting a letter") : say("deleting letters"));
        jet::Batch batch(context.data);
        bool isDone = true;
        for (const qint64 id : ids)
            isDone = isDone && context.data.execute(deleteLetterSql(id));
        if (!isDone || !batch.commit()) {
            core::tellFailedSave(context);
            return false;
        }
    }
    context.services.sounds.play(core::sounds::Delete);
    return true;
}

void writeAgain(core::Context& context, qint64 letter)
{
    const jet::Recordset row = context.data.openRecordset(letterRowSql(letter));
    if (!row.hasRow())
        return noneChosen(context);
    const bool isBusiness = row.textOrEmpty(u"type2").compare(u"Business", Qt::CaseInsensitive) == 0;
    const QStringView form = isBusiness ? u"FrmBusinessLetter" : u"FrmLetter";
    auto* creator = context.screens.load<core::LetterScreen>(form);
    if (creator && creator->showLetter(letter))
        context.screens.show(form);
}

void editLetter(core::Context& context, qint64 letter)
{
    if (!context.data.openRecordset(letterRowSql(letter)).hasRow())
        return noneChosen(context);
    auto* editor = dynamic_cast<FrmEditLetterRecord*>(context.screens.load(u"FrmEditLetterRecord"));
    if (editor && editor->editLetter(letter))
        context.screens.show(u"FrmEditLetterRecord");
}

void showPerson(core::Context& context, qint64 letter)
{
    const jet::Recordset row = context.data.openRecordset(letterRowSql(letter));
    const qint64 person = row.hasRow() ? row.number(u"PerId") : 0;
    const jet::Recordset contact
        = person == 0 ? jet::Recordset() : context.data.openRecordset(core::contactNameSql(person));
    if (!contact.hasRow())
        return noneChosen(context);
    context.shared.selectedContactId = person;
    context.shared.selectedContactName = contact.textOrEmpty(u"Name");
    if (auto* view = context.screens.load<core::ContactScreen>(u"FullView"))
        view->showContact(person);
    context.screens.show(u"FullView");
}

void printLetter(core::Context& context, qint64 letter)
{
    const jet::Recordset row = context.data.openRecordset(letterRowSql(letter));
    if (!row.hasRow())
        return noneChosen(context);
    QString text = row.textOrEmpty(u"Merged");
    if (text.trimmed().isEmpty())
        text = row.textOrEmpty(u"desc");
    output::Report report;
    report.title = row.textOrEmpty(u"person").simplified();
    if (const QDate date = row.date(u"Date"); date.isValid())
        report.printDate = jet::formatDate(date, core::datePattern(context.shared.NationalMode));
    report.fileStem = u"Letter"_s;
    report.source = std::make_shared<output::ListSource>(QStringList{u"text"_s}, QList<QStringList>{{text}});
    report.detail.lines = {{{{u"{text}"_s}}}};
    report.textScale = 11.0 / 9;
    output::ShowReportViewer(context, report, say("Letter"));
}

} // namespace letters

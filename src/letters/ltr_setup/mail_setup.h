#pragma once

#include "jet/database.h"

#include <QStringList>

#include <optional>

/// What is set up once for mail and for the groups of associations: rows without a list.
namespace letters {

QString mailFieldsSql();
/// Whether a field of a mail record is shown in reports. False when it is not stored.
bool setMailField(jet::Database& data, const QString& field, bool isShown);

inline constexpr int kSignatureLines = 4;
QStringList signatureOf(jet::Database& data);
bool storeSignature(jet::Database& data, const QStringList& lines);

inline constexpr int kUserFields = 4;
QString groupsSql();
QString userFieldsSql(const QString& group);
/// The labels of a group; nothing when it has no row yet.
std::optional<QStringList> userFieldsOf(jet::Database& data, const QString& group);
bool storeUserFields(jet::Database& data, const QString& group, const QStringList& labels);

/// The words under which letters and mails are noted in the journal.
QString journalCategoriesSql();
QString journalSubcategoriesSql();
struct JournalWords {
    QString category;
    QString subcategory;

    bool operator==(const JournalWords&) const = default;
};
enum class Noted { Letters, Mails };
JournalWords journalWordsOf(jet::Database& data, Noted what);
bool storeJournalWords(jet::Database& data, Noted what, const JournalWords& words);

} // namespace letters

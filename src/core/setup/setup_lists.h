#pragma once

#include "jet/database.h"

#include <QString>

#include <span>

/// The word lists that the entry forms offer, as the person keeps them.
namespace setup {

enum class ListTab { SavedCalls, Personal, Business, General, UserDefined };

/// One list: its tab and caption, its column, its buttons, and the pieces of its statements as they stand
/// round the words.
struct WordList {
    ListTab tab;
    const char* caption;
    QStringView name; ///< of its controls: "lst" and "txt" and this
    QStringView table;
    QStringView column;
    QStringView versionColumn; ///< empty when the list knows no countries
    QStringView saveButton;
    QStringView deleteButton;
    QStringView renameTo; ///< before the new word
    QStringView renameFrom; ///< between the new word and the old one
    QStringView find; ///< before the word
    QStringView labelColumn = {}; ///< of the settings, for a list whose caption the person chose
};

std::span<const WordList> wordLists();

QString listSql(const WordList& list);
QString renameSql(const WordList& list, const QString& from, const QString& to);
QString findSql(const WordList& list, const QString& word);

enum class WordFault { None, Empty, Known, Unchanged };
/// Whether a word may be added, or may stand for another one of the list; an empty `from` adds.
WordFault checkWord(jet::Database& data, const WordList& list, const QString& from, const QString& word);

/// Each is true when the list is changed afterwards. A word is taken as it is; contacts keep the old one.
bool addWord(jet::Database& data, const WordList& list, const QString& word);
bool renameWord(jet::Database& data, const WordList& list, const QString& from, const QString& to);
bool deleteWord(jet::Database& data, const WordList& list, const QString& word);

} // namespace setup

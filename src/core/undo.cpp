#include "core/undo.h"

#include <algorithm>
#include <cstddef>

#include "core/language.h"

namespace core {
namespace {

using platform::Journal;
using platform::Journal_state;
using platform::Operation_title;
using platform::Prompts;
using platform::Undo_outcome;
using platform::Undo_result;

constexpr std::size_t most_names = 10;

// The two words that differ between undo and redo, in each language.
struct Words {
  const char* japanese;         // 元に戻す
  const char* japanese_past;    // 元に戻しました
  const char* japanese_cannot;  // 元に戻せません
  const char* english;          // Undo
  const char* english_verb;     // undo
  const char* english_past;     // Undone
  const char* english_passive;  // undone
};

constexpr Words undo_words{"元に戻す", "元に戻しました", "元に戻せません", "Undo", "undo", "Undone", "undone"};
constexpr Words redo_words{"やり直す", "やり直しました", "やり直せません", "Redo", "redo", "Redone", "redone"};

struct Two_texts {
  std::string japanese, english;
};

std::string caption(const Words& words, const Operation_title* title, std::string_view language) {
  const bool japanese = is_japanese(language);
  std::string text = japanese ? words.japanese : words.english;
  if (!title) return text;
  return text + ": " + (japanese ? title->japanese : title->english);
}

// The paths in lines of their own, and how many more there are.
Two_texts listed(const std::vector<std::string>& files) {
  Two_texts text;
  for (std::size_t i = 0; i < std::min(files.size(), most_names); ++i) {
    text.japanese += "\n" + files[i];
    text.english += "\n" + files[i];
  }
  if (files.size() > most_names) {
    const std::string more = std::to_string(files.size() - most_names);
    text.japanese += "\n他 " + more + " 件";
    text.english += "\nand " + more + " more";
  }
  return text;
}

Two_texts why_no_journal(const Words& words, Journal_state state) {
  const std::string japanese = words.japanese_cannot, english = words.english_verb;
  if (state == Journal_state::in_use)
    return {"このプロジェクトは別のTerranoteで開かれているため、" + japanese + "。",
            "This project is open in another Terranote, so that this one can't " + english + "."};
  if (state == Journal_state::other_version)
    return {"操作の記録が新しい版のTerranoteのものであるため、" + japanese + "。",
            "A later version of Terranote made the undo journal, so that this one can't " + english + "."};
  if (state == Journal_state::unwritable)
    return {"操作の記録を保存できないため、" + japanese + "。",
            "The undo journal can't be written, so that there is nothing to " + english + "."};
  return {"プロジェクトが開かれていないため、" + japanese + "。",
          "No project is open, so that there is nothing to " + english + "."};
}

Two_texts why_not(const Words& words, const Undo_result& result) {
  const Two_texts files = listed(result.files);
  const std::string nothing_done = std::string("Nothing was ") + words.english_passive;
  switch (result.outcome) {
    case Undo_outcome::changed:
      return {std::string("次のファイルが他のプログラムで変更されているため、") + words.japanese_cannot + "。" +
                  files.japanese,
              "Another program has changed these files. " + nothing_done + "." + files.english};
    case Undo_outcome::failed:
      return {std::string("ファイルを読み書きできないため、") + words.japanese_cannot + "。" + files.japanese,
              "A file could not be read or written. " + nothing_done + "." + files.english};
    case Undo_outcome::broken_off:
      return {std::string("次のファイルに書き込めず、途中で止まりました。もう一度「") + words.japanese +
                  "」を選ぶと続きを行います。" + files.japanese,
              std::string("This file could not be written, and the rest is not ") + words.english_passive +
                  " yet. Choose " + words.english + " again to go on." + files.english};
    case Undo_outcome::unreadable:
      return {std::string("操作の記録が壊れているため、") + words.japanese_cannot + "。",
              "The undo journal is damaged. " + nothing_done + "."};
    default:
      return {std::string(words.japanese) + "操作がありません。",
              std::string("There is nothing to ") + words.english_verb + "."};
  }
}

Undone report(const Words& words, const Journal& journal, const Undo_result& result, Prompts& prompts) {
  Undone undone;
  if (result.outcome == Undo_outcome::done) {
    undone.files_changed = true;
    undone.japanese = std::string(words.japanese_past) + ": " + result.title.japanese;
    undone.english = std::string(words.english_past) + ": " + result.title.english;
    return undone;
  }
  undone.files_changed = result.outcome == Undo_outcome::broken_off;
  const Two_texts text =
      result.outcome == Undo_outcome::without_journal ? why_no_journal(words, journal.state()) : why_not(words, result);
  prompts.message(text.japanese, text.english);
  return undone;
}

constexpr platform::Message older_question{
    "直前の操作は大きすぎるか記録できなかったため、元に戻せません。その前の操作を元に戻しますか?",
    "The last operation was too large or could not be kept, and can't be undone. Undo the one before it?"};

}  // namespace

std::string undo_caption(const Journal& journal, std::string_view language) {
  return caption(undo_words, journal.undo_title(), language);
}

std::string redo_caption(const Journal& journal, std::string_view language) {
  return caption(redo_words, journal.redo_title(), language);
}

Undone menu_undo(Journal& journal, Prompts& prompts) {
  if (journal.lost() && journal.undo_title() && !prompts.yes_no(older_question)) return {};
  return report(undo_words, journal, journal.undo(), prompts);
}

Undone menu_redo(Journal& journal, Prompts& prompts) {
  return report(redo_words, journal, journal.redo(), prompts);
}

}  // namespace core

#include "tests/support/FakeServices.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/Text.h"

namespace nv::test {

FakeMessageBoxes::~FakeMessageBoxes() {
  for (const ExpectedBox& box : expected_) ADD_FAILURE() << "this message box never came: " << box.text;
}

platform::MessageBoxes::Answer FakeMessageBoxes::show(std::wstring_view text, std::wstring_view caption, Icon icon,
                                                      Buttons buttons) {
  if (answerAny) return answerAny(text, buttons);
  if (expected_.empty()) {
    ADD_FAILURE() << "unexpected message box: " << std::wstring(text) << " (" << std::wstring(caption) << ")";
    return buttons == Buttons::ok ? Answer::ok : Answer::no;
  }
  const ExpectedBox box = std::move(expected_.front());
  expected_.pop_front();
  EXPECT_EQ(std::wstring(text), box.text);
  EXPECT_EQ(std::wstring(caption), box.caption) << box.text;
  EXPECT_EQ(icon, box.icon) << box.text;
  EXPECT_EQ(buttons, box.buttons) << box.text;
  if (box.whileOpen) box.whileOpen();
  return box.answer;
}

namespace {

std::wstring folderOf(const std::wstring& path) {
  const auto end = path.rfind(L'\\');
  return path.substr(0, end == std::wstring::npos ? 0 : end);
}

}  // namespace

void FakeFiles::write(const std::wstring& path, std::wstring_view text, Opening opening) {
  const std::wstring file = used(path);
  if (!folderOf(file).empty() && !folders_.contains(folderOf(file))) throw RuntimeError(ErrorNumber::pathNotFound);
  open(file, Barred::nothing);
  if (folders_.contains(file)) throw RuntimeError(ErrorNumber::permissionDenied);
  written_.push_back(path);
  std::wstring& contents = contents_[file];
  if (opening == Opening::truncate) contents.clear();
  contents.append(text);
}

std::uint64_t FakeFiles::length(const std::wstring& path) {
  const std::wstring file = used(path);
  check(file);
  const auto found = contents_.find(file);
  if (found == contents_.end()) throw RuntimeError(ErrorNumber::fileNotFound);
  return found->second.size();
}

std::wstring FakeFiles::read(const std::wstring& path) {
  length(path);
  open(key(path), Barred::writing);
  return text(path);
}

void FakeFiles::remove(const std::wstring& path) {
  length(path);
  open(key(path), Barred::nothing);
  contents_.erase(key(path));
}

void FakeFiles::copy(const std::wstring& from, const std::wstring& to) {
  write(to, read(from), Opening::truncate);
}

void FakeFiles::makeFolder(std::wstring_view path) {
  for (std::wstring folder = key(path); !folder.empty();) {
    folders_.insert(folder);
    const auto above = folder.rfind(L'\\');
    folder.resize(above == std::wstring::npos ? 0 : above);
  }
}

std::wstring FakeFiles::text(std::wstring_view path) const {
  const auto found = contents_.find(key(path));
  return found == contents_.end() ? std::wstring() : found->second;
}

bool FakeFiles::removeAll(std::wstring_view path) {
  const std::wstring top = key(path);
  const auto isIn = [&top](const std::wstring& file) { return file == top || file.starts_with(top + L"\\"); };
  const auto files = std::erase_if(contents_, [&](const auto& file) { return isIn(file.first); });
  std::erase_if(barred_, [&](const auto& file) { return isIn(file.first); });
  return std::erase_if(folders_, isIn) + files > 0;
}

std::wstring FakeFiles::key(std::wstring_view path) const {
  std::wstring key;
  if (!currentFolder.empty() && path.find(L'\\') == std::wstring_view::npos) key = this->key(currentFolder + L"\\");
  for (const wchar_t c : path) {
    if (c != L'\\' || !key.ends_with(L'\\')) key += asciiUpper(c);
  }
  return key;
}

std::wstring FakeFiles::used(const std::wstring& path) const {
  if (whenUsed) whenUsed(path);
  return key(path);
}

void FakeFiles::check(const std::wstring& key) const {
  if (const auto failure = failures_.find(key); failure != failures_.end()) throw RuntimeError(failure->second);
}

/// Fails when the file cannot be opened: when more than `most` is barred.
void FakeFiles::open(const std::wstring& key, Barred most) const {
  check(key);
  for (const std::wstring& place : {key, folderOf(key)}) {
    const auto found = barred_.find(place);
    if (found != barred_.end() && found->second > most) throw RuntimeError(ErrorNumber::permissionDenied);
  }
}

namespace {

/// Moves each letter of one case of Latin-1 to the other; the cases lie 32 apart.
std::wstring shifted(std::wstring_view text, wchar_t a, wchar_t graveA, int distance) {
  std::wstring result(text);
  for (wchar_t& c : result) {
    const bool ascii = c >= a && c < a + 26;
    const bool accented =
        c >= graveA && c < graveA + 31 && c != graveA + 23;  // but for the signs of times and division
    if (ascii || accented) c = static_cast<wchar_t>(c + distance);
  }
  return result;
}

}  // namespace

std::wstring FakeMachine::upperCase(std::wstring_view text) {
  return shifted(text, L'a', L'\u00e0', -32);
}

std::wstring FakeMachine::lowerCase(std::wstring_view text) {
  return shifted(text, L'A', L'\u00c0', 32);
}

}  // namespace nv::test

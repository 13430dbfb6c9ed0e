// What a run of all tests on a machine has found, as a page for a browser.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace nv::host {

enum class Outcome { passed, failed, skipped };

struct Result {
  std::wstring part;  // "scenarios, x86"
  std::wstring test;
  Outcome outcome;
  std::wstring said;  // of a test that has not passed
};

/// What is known of the machine that the result may depend on: name and value.
std::vector<std::pair<std::wstring, std::wstring>> systemFacts();

/// "N passed, N failed", and how many were skipped, if any were.
std::wstring summary(const std::vector<Result>& results);

/// Writes the page.
/// @param pictures a folder beside the file; all pictures in it and below are shown.
/// @param remark a sentence on top; may be empty. Fails with Failure.
void writeReport(const std::filesystem::path& file, const std::vector<Result>& results,
                 const std::filesystem::path& pictures, const std::wstring& remark);

}  // namespace nv::host

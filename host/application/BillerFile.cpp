#include "host/application/BillerFile.h"

#include "host/base/File.h"
#include "host/base/Text.h"
#include "scenario/Tokens.h"

namespace nv::host {

void setBiller(IDispatch& object, const std::filesystem::path& file, const std::wstring& root) {
  const auto text = readFile(file);
  if (!text) throw Failure(file.wstring() + L" cannot be read");
  for (const std::wstring& line : splitLines(wide(*text))) {
    scenario::Tokens tokens(line, {{L"root", root}});
    if (tokens.take(L"include")) setBiller(object, file.parent_path().parent_path() / tokens.word(), root);
    if (!tokens.take(L"let")) continue;
    do {
      const std::wstring property = tokens.word();
      putProperty(object, property, tokens.value());
    } while (!tokens.atEnd());
  }
}

}  // namespace nv::host

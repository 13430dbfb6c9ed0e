// A STAND-IN for kvd8rq3x.dll, the closed library of a host installation that deciphers country files. It really
// deciphers, but with the cipher and the key of Cipher.h: files of a real installation are nothing to it. It notes what
// it is asked; told an answer, it gives that and makes no file.
#include "host/base/File.h"
#include "host/base/Text.h"
#include "host/standins/Answers.h"
#include "host/standins/Cipher.h"

using namespace nv::host;

/// Returns 1 when the file `to` has been made, else 0.
extern "C" int __stdcall DES_decrypt_file(const char* from, const char* to) {
  const std::wstring source = wide(from, CP_ACP);
  const std::wstring target = wide(to, CP_ACP);
  noteAsked(L"DES_decrypt_file", {source, target});
  if (const auto told = answerOf(L"DES_decrypt_file")) return told->result;
  const auto bytes = readFile(source);
  const auto text = bytes ? deciphered(*bytes) : std::nullopt;
  return text && writeFile(target, *text) ? 1 : 0;
}

// Gives a program another manifest: embed-manifest PROGRAM MANIFEST. What a host's own build does when it links.
#include <windows.h>

#include <cstdio>
#include <vector>

int wmain(int argc, wchar_t** argv) {
  if (argc != 3) return 2;
  FILE* const file = _wfopen(argv[2], L"rb");
  if (file == nullptr) return 1;
  std::vector<char> manifest(64 * 1024);
  manifest.resize(fread(manifest.data(), 1, manifest.size(), file));
  fclose(file);
  const HANDLE update = BeginUpdateResourceW(argv[1], FALSE);
  constexpr WORD language = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
  const bool done = update != nullptr &&
                    UpdateResourceW(update, MAKEINTRESOURCEW(24), CREATEPROCESS_MANIFEST_RESOURCE_ID, language,
                                    manifest.data(), static_cast<DWORD>(manifest.size())) != FALSE &&
                    EndUpdateResourceW(update, FALSE) != FALSE;
  return done ? 0 : 1;
}

// What the other library depends on.
extern "C" __declspec(dllexport) short answer() {
  return 17;
}

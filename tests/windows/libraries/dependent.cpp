// A bank library that depends on another library: what it says of every bank id is what that says.
extern "C" __declspec(dllimport) short answer();

extern "C" short __stdcall Check_bank_id(const char* /*bankId*/) {
  return answer();
}

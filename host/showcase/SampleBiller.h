// The biller of the demo: a Canadian utility that does not exist.
#pragma once

#include <string>
#include <vector>

#include "host/application/Biller.h"

namespace nv::host {

/// Hands the biller and what a host tells about itself to the component.
/// @param dllPath folder of the installation.
void setSampleBiller(Biller& biller, const std::wstring& dllPath);

struct RecordValue {
  std::wstring property;
  std::wstring value;
};

/// The whole biller record as it stands, in the order of the interface.
std::vector<RecordValue> readRecord(Biller& biller);

}  // namespace nv::host

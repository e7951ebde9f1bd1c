// The partner edition's marker, images\Config.txt. Input: the file.
#include <string>

#include "agent/partner_edition.h"
#include "fuzz/check.h"
#include "platform/memory/machine.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  platform::memory::Machine machine;
  shared::AgentState state;
  state.InstallFolder = "C:\\Sorvane";
  state.ProductName = "Sorvane";
  machine.files().Put("C:\\Sorvane\\images\\Config.txt", fuzz::Text(data, size));
  agent::ApplyPartnerEdition(machine.platform().files, state);
  agent::NameBlankProduct(state);

  fuzz::Check(state.ProductNumber == 1 && state.ProductFolder == "Tolvex Professional");
  fuzz::Check(state.ProductCaption == state.ProductName);
  fuzz::Check(state.ProductName.find_first_not_of(' ') != std::string::npos);
  fuzz::Check((state.ProductName + state.BrandIconFile).find_first_of("\r\n") == std::string::npos);
  return 0;
}

// Stands in for the listing tool: prints the file "listing" that lies beside the bundle's folder of
// programs.

#include <filesystem>
#include <fstream>
#include <iostream>

int main() {
  const auto self = std::filesystem::read_symlink("/proc/self/exe");
  std::cout << std::ifstream(self.parent_path().parent_path() / "listing").rdbuf();
}

#include "cli/bank_files.h"

#include <algorithm>
#include <fstream>
#include <ostream>
#include <sstream>
#include <vector>

#include "bank/bank.h"
#include "core/textnum.h"

namespace obsdesk {

namespace fs = std::filesystem;

namespace {

std::string system_name_of(const fs::path& root, const fs::path& file) {
  std::string name = fs::relative(file, root).generic_string();
  std::replace(name.begin(), name.end(), '/', '\\');
  return name;
}

void print_file(const fs::path& root, const fs::path& file, std::ostream& out) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  const std::string text = from_cp1256(bytes.str());
  out << "== " << system_name_of(root, file) << " (" << bytes.str().size() << " bytes)\n";
  std::string line;
  for (char c : text) {
    if (c == '\r') {
      line += "\\r";
    } else if (c == '\n') {
      out << "  " << line << "\\n\n";
      line.clear();
    } else {
      line += c;
    }
  }
  if (!line.empty()) out << "  " << line << "\n";
}

}  // namespace

void print_bank_files(const fs::path& root, std::string_view system_name, std::ostream& out) {
  const fs::path target = resolve_bank_path(root, system_name);
  std::error_code ec;
  if (fs::is_regular_file(target, ec)) {
    print_file(root, target, out);
    return;
  }
  if (!fs::is_directory(target, ec)) {
    out << "== " << system_name << " (missing)\n";
    return;
  }
  std::vector<fs::path> files;
  for (fs::recursive_directory_iterator it(target, ec), end; !ec && it != end; it.increment(ec))
    if (it->is_regular_file()) files.push_back(it->path());
  std::sort(files.begin(), files.end());
  for (const fs::path& f : files) print_file(root, f, out);
}

}  // namespace obsdesk

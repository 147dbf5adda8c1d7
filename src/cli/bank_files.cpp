#include "cli/bank_files.h"

#include <algorithm>
#include <fstream>
#include <ostream>
#include <sstream>
#include <vector>

#include "bank/bank.h"
#include "coders/bufr.h"
#include "core/textnum.h"

namespace obsdesk {

namespace fs = std::filesystem;

namespace {

std::string system_name_of(const fs::path& root, const fs::path& file) {
  std::string name = fs::relative(file, root).generic_string();
  std::replace(name.begin(), name.end(), '/', '\\');
  return name;
}

// A BUFR file is binary: it is shown as ecCodes reads it back, each message's
// values in words.
void print_bufr(const std::string& bytes, std::ostream& out) {
  try {
    const auto reports = decode_bufr(bytes);
    for (std::size_t i = 0; i < reports.size(); ++i) {
      out << "  message " << i + 1 << "\n";
      for (const std::string& line : bufr_words(reports[i])) out << "    " << line << "\n";
    }
  } catch (const BufrError& e) {
    out << "  " << e.what() << "\n";
  }
}

void print_file(const fs::path& root, const fs::path& file, std::ostream& out) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  if (upper(file.extension().string()) == ".BUFR") {
    out << "== " << system_name_of(root, file) << " (" << bytes.str().size() << " bytes)\n";
    print_bufr(bytes.str(), out);
    return;
  }
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

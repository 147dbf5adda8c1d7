// The runner's view of the files the program wrote under the bank root: each
// file by its name below the root, then its lines read back from the code page,
// with every CR and LF shown, so that a golden output holds the bytes. A BUFR
// file shows each of its messages as ecCodes reads it back.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string_view>

namespace obsdesk {

// A file, or every file in a folder and below it in name order. A name that is
// not there prints as missing.
void print_bank_files(const std::filesystem::path& root, std::string_view system_name, std::ostream& out);

}  // namespace obsdesk

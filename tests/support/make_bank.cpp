// Makes the bank the tests copy from: `obsdesk_make_bank DIR` clears DIR and
// makes a new bank in it.
#include <iostream>

#include "support/test_support.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: obsdesk_make_bank DIR\n";
    return 2;
  }
  try {
    std::filesystem::remove_all(argv[1]);
    obsdesk::test::make_bank(argv[1]);
  } catch (const std::exception& e) {
    std::cerr << e.what() << '\n';
    return 1;
  }
  return 0;
}

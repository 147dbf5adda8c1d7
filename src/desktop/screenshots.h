// Pictures of the screens without a display: a scenario is run, and at each
// "snap SCREEN" line the screen's window is drawn to OUTDIR/NN-SCREEN.png as it
// stands. "question TEXT" draws the yes-or-no box with that question. Every
// other line is a line of the scenario runner.
#pragma once

#include <filesystem>
#include <iosfwd>

namespace obsdesk {

int take_screenshots(const std::filesystem::path& bank, const std::filesystem::path& out_dir,
                     const std::filesystem::path& scenario, std::ostream& err);

}  // namespace obsdesk

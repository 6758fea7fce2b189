#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "bench.h"
#include "model.h"

namespace ovl::bench {

void MeasureRegisterPick(Site& site) {
  core::Application app;
  const char received = '\0';
  StartModel(app, site, received);
  std::vector<double> taken;
  const int names = static_cast<int>(app.frmMain.ComboReg.items.size());
  for (int position = 0; position < names; ++position) {
    const auto start = std::chrono::steady_clock::now();
    Dispatch(app, core::PickEvent{&app.frmMain.ComboReg, position});
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    taken.push_back(time.count());
  }
  std::sort(taken.begin(), taken.end());
  std::printf("register pick, to the last panel   median %.3f ms, longest %.3f ms (aim below 2)\n",
              taken[taken.size() / 2], taken.back());
}

}  // namespace ovl::bench

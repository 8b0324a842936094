# Programs of somebody who uses the installed library, static and shared, by CMake and pkg-config.
cd /packages
apt-get -q -y install ./liborv3cal1_*.deb ./liborv3cal-dev_*.deb ./orv3cal_*.deb
cmake -S consumer -B /tmp/consumer
cmake --build /tmp/consumer
for program in static_by_package static_by_pkg_config shared_by_package shared_by_pkg_config; do
  "/tmp/consumer/$program"
done
cat >/tmp/area.c <<'EOF'
#include <orv3cal_c.h>
#include <stdio.h>
#include <uchar.h>
int main(void) {
  double area = 0;
  if (orv3_open_data(u"/usr/share/orv3cal") < 0 ||
      orv3_cell_value(u"热轧普通工字钢", u"I20a", u"A(cm^2)", &area) < 0) return 1;
  printf("%g\n", area);
}
EOF
gcc /tmp/area.c $(pkg-config --cflags --libs orv3cal) -o /tmp/area
/tmp/area | grep -x 35.578
echo '#include <orv3cal.h>' | (! g++ -std=c++17 $(pkg-config --cflags orv3cal) -fsyntax-only -x c++ - 2>&1) |
  grep -F -e -std=c++20
cmake -DLIBRARY="$(find /usr/lib -name liborv3cal.so)" -P consumer/exports.cmake

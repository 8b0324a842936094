# Programs of somebody who uses the installed library, static and shared, by CMake and pkg-config.
cd /packages
apt-get -q -y install ./liborv3cal1_*.deb ./liborv3cal-dev_*.deb
cmake -S consumer -B /tmp/consumer
cmake --build /tmp/consumer
for program in static_by_package static_by_pkg_config shared_by_package shared_by_pkg_config; do
  "/tmp/consumer/$program"
done
cmake -DLIBRARY="$(find /usr/lib -name liborv3cal.so)" -P consumer/exports.cmake

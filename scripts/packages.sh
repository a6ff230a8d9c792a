#!/usr/bin/env bash
# Installs the Debian packages that are missing: packages.sh build|test|lint|package|trypackage|firstday
# Asks for root rights only when something is missing.
set -euo pipefail

build=(g++ cmake ninja-build ccache qt6-base-dev qt6-serialport-dev libsqlite3-dev libpq-dev libzint-dev
    libcups2-dev libzip-dev libxlsxwriter-dev qt6-charts-dev libqt6opengl6-dev fonts-dejavu-core fonts-liberation
    qt6-tools-dev qt6-documentation-tools qt6-l10n-tools qt6-translations-l10n libqt6sql6-sqlite qt6-httpserver-dev qt6-websockets-dev
    libssl-dev)
test=(postgresql-15 libgtest-dev clang-format cups cups-client poppler-utils zbar-tools)
lint=(clang-format clang-tidy)
package=("${build[@]}" dpkg-dev file help2man lintian appstream desktop-file-utils libxml2-utils)
trypackage=(mmdebstrap imagemagick)
firstday=("${build[@]}" python3 xvfb openbox chromium chromium-driver)

case "${1:-}" in
build) wanted=("${build[@]}") ;;
test) wanted=("${build[@]}" "${test[@]}") ;;
lint) wanted=("${lint[@]}") ;;
package) wanted=("${package[@]}") ;;
trypackage) wanted=("${trypackage[@]}") ;;
firstday) wanted=("${firstday[@]}") ;;
*)
    echo "usage: packages.sh build|test|lint|package|trypackage|firstday" >&2
    exit 2
    ;;
esac

missing=()
for package in "${wanted[@]}"; do
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
        echo "These packages are missing and need root rights to install: ${missing[*]}" >&2
        exit 1
    }
    as_root=(sudo)
fi

# The tests start a PostgreSQL of their own, so the package need not make and start a cluster.
if [[ " ${missing[*]} " == *" postgresql-15 "* ]] && [ ! -e /etc/postgresql-common/createcluster.conf ]; then
    "${as_root[@]}" mkdir -p /etc/postgresql-common
    echo 'create_main_cluster = false' | "${as_root[@]}" tee /etc/postgresql-common/createcluster.conf >/dev/null
fi
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends \
    -o Dpkg::Options::=--force-confold "${missing[@]}"

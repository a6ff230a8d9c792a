#!/bin/bash
# cups.sh start DIR | stop DIR: a print system (CUPS) of its own for the tests, apart from the machine's. Start leaves in
# DIR/home the folder that it lives in, and does nothing when it runs already; where it cannot run, the status is 77. Stop
# removes everything. Programs find it when CUPS_SERVER names the socket in its folder. Its printers:
#   PDF       the default one; leaves the pages of its last job in printed.pdf
#   Refusing  exists, but takes no jobs
# Who may reach its folder may have it do everything: never print anything else with it.
set -euo pipefail

action=${1:-}
dir=${2:-}
if [[ ! $action =~ ^(start|stop)$ || -z $dir ]]; then
    echo "usage: $0 start|stop DIR" >&2
    exit 2
fi
mkdir -p "$dir"
dir=$(cd "$dir" && pwd)
PATH=$PATH:/usr/sbin:/sbin

home=
[[ -s $dir/home ]] && home=$(<"$dir/home")

running() {
    local pid
    [[ -n $home && -s $home/pid ]] && pid=$(<"$home/pid") && grep -qsF "$home/cupsd.conf" "/proc/$pid/cmdline"
}

remove() {
    if running; then
        local pid
        pid=$(<"$home/pid")
        kill "$pid"
        for ((i = 0; i < 100; ++i)); do
            running || break
            sleep 0.1
        done
        if running; then kill -KILL "$pid"; fi
    fi
    if [[ -n $home ]]; then rm -rf "$home"; fi
    rm -f "$dir/home"
    rmdir "$dir" 2>/dev/null || true
}

# Whoever runs the tests runs its filters too; root, whom it refuses for that, leaves them to lp.
user=$(id -un)
[[ $(id -u) == 0 ]] && user="lp"

configure() {
    mkdir "$home"/{etc,etc/ppd,spool,cache,run,tmp,log}
    chmod 1777 "$home/tmp" # for its filters
    cat >"$home/cups-files.conf" <<EOF
ServerRoot $home/etc
RequestRoot $home/spool
CacheDir $home/cache
StateDir $home/run
TempDir $home/tmp
AccessLog $home/log/access
ErrorLog $home/log/error
PageLog $home/log/page
DocumentRoot $home/etc
User $user
Group $(id -gn "$user")
SystemGroup $(id -gn)
FileDevice Yes
FatalErrors config listen
EOF
    cat >"$home/cupsd.conf" <<EOF
Listen $home/socket
DefaultAuthType None
WebInterface No
Browsing No
DefaultShared No
DirtyCleanInterval 0
MaxLogSize 0
ErrorPolicy abort-job
<Location />
  Order deny,allow
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
EOF
    # A printer that takes PDF and leaves pages and copies to the print system.
    cat >"$home/pdf.ppd" <<'EOF'
*PPD-Adobe: "4.3"
*NickName: "PDF"
*LandscapeOrientation: Plus90
*cupsManualCopies: True
*cupsFilter2: "application/vnd.cups-pdf application/pdf 0 -"
*OpenUI *PageSize: PickOne
*DefaultPageSize: Letter
*PageSize Letter: "<</PageSize[612 792]>>setpagedevice"
*PageSize A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageSize
*DefaultImageableArea: Letter
*ImageableArea Letter: "18 36 594 756"
*ImageableArea A4: "18 36 577 806"
*DefaultPaperDimension: Letter
*PaperDimension Letter: "612 792"
*PaperDimension A4: "595 842"
EOF
}

start() {
    if running; then
        echo "CUPS runs already in $home"
        return
    fi
    remove # what a run left behind that was killed
    local tool
    for tool in cupsd lpadmin lpstat cupsreject; do
        command -v $tool >/dev/null || {
            echo "CUPS was not found ($tool is missing); install cups-daemon and cups-client." >&2
            exit 77
        }
    done
    mkdir -p "$dir"
    home=$(mktemp -d /tmp/tallymere-cups.XXXXXX) # a short name, or the socket has none
    configure
    echo "$home" >"$dir/home"
    setsid cupsd -f -c "$home/cupsd.conf" -s "$home/cups-files.conf" </dev/null >"$home/log/output" 2>&1 &
    echo $! >"$home/pid"
    export CUPS_SERVER=$home/socket
    local i
    for ((i = 0; i < 300; ++i)); do
        [[ $(LC_ALL=C lpstat -r 2>/dev/null) == *"is running"* ]] && break
        sleep 0.1
        running || break
    done
    # Nobody else may give orders to what may run as root; its filters must get in.
    if [[ -S $home/socket ]]; then chmod 600 "$home/socket"; fi
    chmod 711 "$home"
    local printer
    for printer in PDF Refusing; do
        lpadmin -p $printer -v "file:$home/printed.pdf" -P "$home/pdf.ppd" -E 2>"$home/log/lpadmin" || {
            echo "CUPS did not start:" >&2
            tail -n 20 "$home"/log/* >&2 || true
            remove
            exit 77
        }
    done
    lpadmin -d PDF
    cupsreject Refusing
    echo "CUPS runs in $home"
}

case $action in
    start) start ;;
    stop) remove ;;
esac

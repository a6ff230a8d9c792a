#!/usr/bin/env bash
# pooler.sh start DIR SERVERPORT session|transaction | stop DIR: pgbouncer before the test server of that port, all of it in
# DIR, which must be new. Start leaves its port in DIR/port. Ends with 77 where pgbouncer is not installed.
set -euo pipefail
action=$1 dir=$2
if [[ $action == stop ]]; then
    [[ ! -s $dir/pid ]] || kill "$(<"$dir/pid")"
    rm -rf "$dir"
    exit
fi
command -v pgbouncer >/dev/null || exit 77
mkdir -p "$dir"
port=$(python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])')
echo '"zorvadin" "zorvadin"' >"$dir/users"
cat >"$dir/ini" <<END
[databases]
* = host=127.0.0.1 port=$3
[pgbouncer]
listen_addr = 127.0.0.1
listen_port = $port
unix_socket_dir =
auth_type = plain
auth_file = $dir/users
pool_mode = $4
logfile = $dir/log
pidfile = $dir/pid
END
as_other=()
if [[ $(id -u) == 0 ]]; then # which it refuses to be
    chown -R postgres: "$dir"
    as_other=(runuser -u postgres --)
fi
"${as_other[@]}" pgbouncer -q -d "$dir/ini"
until (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null; do sleep 0.05; done
echo "$port" >"$dir/port"

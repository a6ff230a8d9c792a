#!/bin/bash
# postgres.sh start DIR | stop DIR: a PostgreSQL server for the tests, all of it in DIR, on a free port of the
# loopback address. Start leaves the port in DIR/port and does nothing when the server runs already; stop removes
# everything. The role is the module's own account; the
# superuser is postgres, with the same password. Unsafe settings make it fast: never keep data in it.
# postgres.sh standby DIR | standby-stop DIR: a standby server of it, made when it is first started, which ends whatever
# is in the way of its replay. Its port is in DIR/standby-port.
set -euo pipefail

action=${1:-}
dir=${2:-}
if [[ ! $action =~ ^(start|stop|standby|standby-stop)$ || -z $dir ]]; then
    echo "usage: $0 start|stop|standby|standby-stop DIR" >&2
    exit 2
fi
mkdir -p "$dir"
dir=$(cd "$dir" && pwd)

bin=$(pg_config --bindir 2>/dev/null || true)
for candidate in "$bin" /usr/lib/postgresql/15/bin /usr/lib/postgresql/*/bin; do
    [[ -x $candidate/initdb ]] && bin=$candidate && break
done
if [[ ! -x $bin/initdb ]]; then
    echo "PostgreSQL's server programs (initdb, pg_ctl) were not found; install postgresql-15." >&2
    exit 1
fi

# The server refuses to run as root; then it gets a folder that its own account can reach, named in DIR/home.
as_server=()
home=$dir
if [[ $(id -u) == 0 ]]; then
    as_server=(runuser -u postgres --)
    if [[ -s $dir/home ]]; then
        home=$(<"$dir/home")
    else
        home=$(mktemp -d /tmp/tallymere-pg.XXXXXX)
        chown postgres: "$home"
        echo "$home" >"$dir/home"
    fi
fi
data=$home/data
copy=$home/standby

in_home() { (cd "$home" && "${as_server[@]}" "$@"); }
running() { [[ -d $data ]] && in_home "$bin/pg_ctl" status -D "$data" >/dev/null 2>&1; }
stop_standby() {
    if [[ -d $copy ]] && in_home "$bin/pg_ctl" status -D "$copy" >/dev/null 2>&1; then
        in_home "$bin/pg_ctl" stop -D "$copy" -m immediate -w >/dev/null
    fi
}

remove() {
    stop_standby
    if running; then in_home "$bin/pg_ctl" stop -D "$data" -m immediate -w >/dev/null; fi
    rm -f "$dir/port" "$dir/standby-port" "$dir/home"
    rm -rf "$data" "$copy" "$home/log" "$home/standby-log" "$home/password"
    if [[ $home != "$dir" ]]; then rm -rf "$home"; fi
    rmdir "$dir" 2>/dev/null || true
}

free_port() {
    python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])' 2>/dev/null \
        || echo $((20000 + RANDOM % 20000))
}

start() {
    if running && [[ -s $dir/port ]]; then
        echo "PostgreSQL runs already on port $(<"$dir/port")"
        return
    fi
    if [[ -e $data ]]; then # left behind by a run that was killed
        if running; then in_home "$bin/pg_ctl" stop -D "$data" -m immediate -w >/dev/null; fi
        rm -rf "$data"
    fi
    mkdir -p "$home"
    rm -f "$home/password"
    (umask 077; echo zorvadin >"$home/password")
    [[ $home == "$dir" ]] || chown -R postgres: "$home"
    in_home "$bin/initdb" -D "$data" -U postgres --pwfile="$home/password" -A scram-sha-256 -E UTF8 --locale=C \
        --no-sync >/dev/null
    cat >>"$data/postgresql.conf" <<EOF
listen_addresses = '127.0.0.1'
unix_socket_directories = ''
max_connections = 100
max_locks_per_transaction = 256
fsync = off
autovacuum = off
full_page_writes = off
EOF
    local port attempt
    for attempt in 1 2 3 4 5; do
        port=$(free_port)
        if in_home "$bin/pg_ctl" start -D "$data" -l "$home/log" -w -t 60 -o "-p $port" >/dev/null; then
            PGPASSWORD=zorvadin "$bin/psql" -qX -h 127.0.0.1 -p "$port" -U postgres -d postgres \
                -c "CREATE ROLE zorvadin LOGIN CREATEDB PASSWORD 'zorvadin'"
            echo "$port" >"$dir/port"
            echo "PostgreSQL runs on port $port"
            return
        fi
    done
    cat "$home/log" >&2
    exit 1
}

start_standby() {
    if [[ -d $copy ]] && in_home "$bin/pg_ctl" status -D "$copy" >/dev/null 2>&1; then return; fi
    if [[ ! -e $copy ]]; then
        in_home env PGPASSWORD=zorvadin "$bin/pg_basebackup" -h 127.0.0.1 -p "$(<"$dir/port")" -U postgres \
            -D "$copy" -R -X stream -c fast --no-sync
        echo "max_standby_streaming_delay = 0" >>"$copy/postgresql.conf"
        free_port >"$dir/standby-port"
    fi
    in_home "$bin/pg_ctl" start -D "$copy" -l "$home/standby-log" -w -t 60 -o "-p $(<"$dir/standby-port")" >/dev/null
    echo "Its standby runs on port $(<"$dir/standby-port")"
}

case $action in
    start) start ;;
    stop) remove ;;
    standby) start_standby ;;
    standby-stop) stop_standby ;;
esac

#!/usr/bin/env bash
# A private cupsd on 127.0.0.1 for measuring openings, set up as the e2e tests'
# PrivateCupsServer does (own config, a capture backend, every request logged).
#
#   bench/private-cupsd.sh start DIR QUEUE=PPD [QUEUE=PPD ...]
#       starts it in DIR (made if missing), adds the queues; prints
#       "127.0.0.1:PORT" and the client environment to export (HOME and
#       CUPS_SERVERROOT in DIR/client: no user's lpoptions).
#   bench/private-cupsd.sh stop DIR
#       stops it by the process id it wrote in DIR/cupsd.pid.
# Needs root (cupsd runs its backends as user lp). The requests of a run are
# the lines of DIR/log/access_log (AccessLogLevel all).
set -euo pipefail

usage() { sed -n '2,12p' "$0" >&2; exit 2; }
[ $# -ge 2 ] || usage
cmd=$1 dir=$2
shift 2

case "$cmd" in
stop)
  [ -f "$dir/cupsd.pid" ] || exit 0
  pid=$(cat "$dir/cupsd.pid")
  kill "$pid" 2>/dev/null || true
  for _ in $(seq 50); do kill -0 "$pid" 2>/dev/null || break; sleep 0.1; done
  rm -f "$dir/cupsd.pid"
  exit 0
  ;;
start) ;;
*) usage ;;
esac

mkdir -p "$dir"
dir=$(cd "$dir" && pwd)
port=$(python3 -c 'import socket; s=socket.socket(); s.bind(("127.0.0.1",0)); print(s.getsockname()[1])')
for d in etc spool/tmp cache state log bin/backend capture client; do mkdir -p "$dir/$d"; done
chmod 755 "$dir"
chmod 700 "$dir/client"
for d in /usr/lib/cups/*/; do
  name=$(basename "$d")
  case "$name" in backend*) ;; *) ln -sfn "$d" "$dir/bin/$name" ;; esac
done
cat > "$dir/bin/backend/capture" <<'SH'
#!/bin/sh
if [ $# -eq 0 ]; then echo 'direct capture "Unknown" "Print Panels capture"'; exit 0; fi
base="${DEVICE_URI#capture:}/job-$1"
if [ $# -ge 6 ]; then cat "$6"; else cat; fi > "$base.doc"
SH
chmod 755 "$dir/bin/backend/capture"
cat > "$dir/cups-files.conf" <<EOF
ServerRoot $dir/etc
RequestRoot $dir/spool
TempDir $dir/spool/tmp
CacheDir $dir/cache
StateDir $dir/state
ServerBin $dir/bin
ServerKeychain $dir/etc/ssl
Printcap $dir/etc/printcap
AccessLog $dir/log/access_log
ErrorLog $dir/log/error_log
PageLog $dir/log/page_log
FileDevice Yes
User lp
Group lp
EOF
cat > "$dir/cupsd.conf" <<EOF
Listen 127.0.0.1:$port
Browsing No
WebInterface No
DefaultAuthType None
LogLevel warn
AccessLogLevel all
<Location />
  Order allow,deny
  Allow all
</Location>
<Location /admin>
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
EOF
chmod 640 "$dir/cups-files.conf" "$dir/cupsd.conf"
cupsd -f -c "$dir/cupsd.conf" -s "$dir/cups-files.conf" > "$dir/log/cupsd.out" 2>&1 &
echo $! > "$dir/cupsd.pid"
for _ in $(seq 150); do
  python3 -c "import socket; socket.create_connection(('127.0.0.1',$port),0.2)" 2>/dev/null && break
  sleep 0.1
done
export HOME="$dir/client" CUPS_SERVERROOT="$dir/client"
for q in "$@"; do
  name=${q%%=*} ppd=${q#*=}
  mkdir -p "$dir/capture/$name" && chown lp:lp "$dir/capture/$name"
  lpadmin -h "127.0.0.1:$port" -p "$name" -E -v "capture:$dir/capture/$name" -P "$ppd"
done
echo "127.0.0.1:$port"
echo "export HOME=$dir/client CUPS_SERVERROOT=$dir/client"

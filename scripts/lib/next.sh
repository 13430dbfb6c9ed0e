# The distribution's next release, with its Wine, in a folder: what must not depend on one Wine is played there, too. To
# be sourced; needs $root (the checkout), and root's rights for what begins with in_next or prepare_next.

next_release=trixie
next=$root/build/$next_release

# prepare_next: makes the folder, once; after that it asks nothing of the network.
prepare_next() {
  [ -e "$next/.ready" ] && return
  local log=$root/build/$next_release.log
  echo "setup: making Debian $next_release in build, for its Wine" >&2
  if ! {
    command -v debootstrap || { apt-get update; apt-get install -y --no-install-recommends debootstrap; }
    [ -e "$next/etc/debian_version" ] || debootstrap --variant=minbase "$next_release" "$next"
    in_next dpkg --add-architecture i386
    in_next apt-get update
    in_next apt-get install -y --no-install-recommends wine wine32:i386 wine64 fonts-wine xvfb xauth
  } >"$log" 2>&1; then
    tail -n 40 "$log" >&2
    echo "setup: $next_release could not be made; all of it in $log" >&2
    return 1
  fi
  touch "$next/.ready"
}

# in_next COMMAND...: runs it there, with the checkout at its own path. What is mounted for it is seen by nobody else and
# goes with it.
in_next() {
  # shellcheck disable=SC2016
  unshare --mount --propagation private bash -c '
    next=$1 root=$2
    mkdir -p "$next$root" &&
      mount --bind "$root" "$next$root" && mount -t proc proc "$next/proc" && mount --rbind /dev "$next/dev" || exit 1
    shift 2
    exec chroot "$next" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 NV_NEXT=yes DEBIAN_FRONTEND=noninteractive \
      ${NVRANDOM_SHOWS:+NVRANDOM_SHOWS=$NVRANDOM_SHOWS} bash -c "cd \"\$0\" && exec \"\$@\"" "$root" "$@"
  ' in_next "$next" "$root" "$@"
}

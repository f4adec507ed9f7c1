# Sourced by what works in a fresh system, as root and in a mount namespace that ends with it.

# Unpacks a base into a folder, with the devices and processes of this system.
unpack_root() {
  local base=$1 root=$2
  mkdir -p "$root"
  chmod 755 "$root"
  tar --extract --file "$base" --directory "$root"
  mount --bind /proc "$root/proc"
  mount --bind /dev "$root/dev"
}

remove_root() {
  umount "$1/proc" "$1/dev"
  rm -rf --one-file-system "$1"
}

# Runs a command inside, as root.
inside() {
  local root=$1
  shift
  chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 HOME=/root "$@"
}

# Sourced by the scripts that need a fresh Debian: its base, made once and kept in the user's cache for thirty
# days. Wants root (or sudo).

FRESH_CACHE=${XDG_CACHE_HOME:-$HOME/.cache}/wheelwright-root

own_codename() {
  . /etc/os-release && echo "$VERSION_CODENAME"
}

# The machine's own sources of Debian, in the one-line form, for the Debian of that codename.
debian_sources() {
  apt-get indextargets --format 'deb [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $(REPO_URI) $(RELEASE) $(COMPONENT)' \
    'Created-By: Packages' 'Origin: Debian' | sed "s/ $(own_codename)/ $1/" | sort -u
}

# Sets base to a tar file of a Debian of that codename with the packages that satisfy the dependencies, as a
# package would name them, and no others.
need_base() {
  local codename=$1 depends=$2
  base=$FRESH_CACHE/$codename-$(sha256sum <<<"$depends" | cut -c 1-16).tar
  mkdir -p "$FRESH_CACHE"
  find "$FRESH_CACHE" -name '*.tar' -mtime +30 -delete
  [ -e "$base" ] && return
  echo "Making the base of a fresh system, $base"
  debian_sources "$codename" | as_root mmdebstrap --quiet --variant=apt --aptopt='Acquire::Retries "3"' \
    --customize-hook="chroot \"\$1\" apt-get -qq --yes --no-install-recommends satisfy '$depends'" \
    "$codename" "$FRESH_CACHE/new.tar" - >"$FRESH_CACHE/log" 2>&1 || { cat "$FRESH_CACHE/log" >&2; return 1; }
  mv "$FRESH_CACHE/new.tar" "$base"
}

#!/bin/sh
# Makes the certificates with which the stand-in library is tried and tested: people of several invented
# organisations, signing and encrypting, in a local store, a network store and a revocation list.
#
#   make_certificates.sh TARGET_FOLDER
#
# leaves TARGET_FOLDER/local, TARGET_FOLDER/network and TARGET_FOLDER/crl. Nothing happens when this script
# has made them before. Needs openssl. The private keys are thrown away: nothing is ever decrypted or signed
# with these certificates, they are only found and chosen.
set -eu
export LC_ALL=C

if [ $# -ne 1 ]; then
    echo "usage: $0 TARGET_FOLDER" >&2
    exit 2
fi
command -v openssl >/dev/null || { echo "$0: openssl is not installed" >&2; exit 1; }

target=$1
stamp=$target/made_certificates.txt
version="made by $(cksum <"$0")"
if [ -f "$stamp" ] && [ "$(head -n 1 "$stamp")" = "$version" ]; then
    exit 0
fi

mkdir -p "$target"
work=$(mktemp -d "$target/.making.XXXXXX")
trap 'rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM
mkdir "$work/local" "$work/network" "$work/crl" "$work/issued"

cat >"$work/authority.cnf" <<CONFIG
[ca]
default_ca = authority
[authority]
new_certs_dir = $work/issued
database = $work/index.txt
rand_serial = yes
private_key = $work/authority.key
certificate = $work/crl/authority.crt
default_md = sha256
default_crl_days = 7300
unique_subject = no
policy = anything
email_in_dn = yes
string_mask = utf8only
utf8 = yes
[anything]
countryName = optional
stateOrProvinceName = optional
localityName = optional
organizationName = optional
organizationalUnitName = optional
commonName = optional
emailAddress = optional
[req]
distinguished_name = asked
string_mask = utf8only
utf8 = yes
prompt = no
[asked]
commonName = unused
[certificate_authority]
basicConstraints = critical, CA:TRUE
keyUsage = critical, keyCertSign, cRLSign
[encrypting]
keyUsage = critical, keyEncipherment, dataEncipherment
[agreeing]
keyUsage = critical, keyAgreement
[signing]
keyUsage = critical, digitalSignature, nonRepudiation
[both]
keyUsage = critical, digitalSignature, keyEncipherment
[unrestricted]
basicConstraints = CA:FALSE
CONFIG
: >"$work/index.txt"

quietly() {
    "$@" >"$work/log.txt" 2>&1 || { cat "$work/log.txt" >&2; exit 1; }
}

quietly openssl req -x509 -newkey rsa:2048 -nodes -keyout "$work/authority.key" -days 9000 -utf8 \
    -config "$work/authority.cnf" -extensions certificate_authority \
    -subj "/C=GB/O=Exchange Test Authority/CN=Exchange Test CA" -out "$work/crl/authority.crt"

# issue STORE FILE USE SUBJECT [END]: one certificate; a file name ending in .pem gives a text file.
issue() {
    store=$1 file=$2 use=$3 subject=$4 until=${5:-20491231235959Z}
    case $use in
        agreeing) set -- -newkey ec -pkeyopt ec_paramgen_curve:P-256 ;;
        *) set -- -newkey rsa:2048 ;;
    esac
    quietly openssl req -new -nodes -utf8 -config "$work/authority.cnf" -subj "$subject" \
        -keyout "$work/key" -out "$work/request" "$@"
    quietly openssl ca -batch -notext -utf8 -config "$work/authority.cnf" -extensions "$use" \
        -startdate 20200101000000Z -enddate "$until" -in "$work/request" -out "$work/issued.pem"
    case $file in
        *.pem) cp "$work/issued.pem" "$work/$store/$file" ;;
        *) quietly openssl x509 -in "$work/issued.pem" -outform DER -out "$work/$store/$file" ;;
    esac
}

clearing="/C=GB/O=Northgate Clearing"
freight="/C=SE/O=Lindholm Freight"
timber="/C=RU/O=Торговый дом Сосновый бор"
insurance="/C=US/O=Ferrow Insurance"

# Helen Marsh has two certificates: the second was issued before the first runs out.
issue local helen_marsh.cer encrypting "$clearing/OU=Settlement/CN=Helen Marsh"
issue local helen_marsh_renewed.cer both "$clearing/OU=Settlement/CN=Helen Marsh"
issue local oliver_trent.cer both "$clearing/OU=Settlement/CN=Oliver Trent"
issue network northgate_gateway.cer encrypting "$clearing/CN=Northgate Gateway"
issue local astrid_lindholm.crt agreeing "$freight/CN=Astrid Lindholm"
issue local erik_sandberg.cer signing "$freight/CN=Erik Sandberg"
issue network maja_nyberg.cer both "$freight/CN=Maja Nyberg"
issue local ivanova.pem both "$timber/CN=Иванова Мария Петровна"
issue local kuznetsov.pem signing "$timber/CN=Кузнецов Андрей"
issue network sokolova.pem encrypting "$timber/CN=Соколова Ольга"
issue local daniel_okafor.cer both \
    "$insurance/OU=Claims/CN=Daniel Okafor/emailAddress=daniel.okafor@ferrow.example"
issue local grace_whitfield.cer encrypting "$insurance/CN=Grace Whitfield" 20220101000000Z
issue network ruth_vale.cer unrestricted "/C=GB/O=Vale, Son and Partners/CN=Ruth Vale"

# Peter Vale is found until the revocation list has been loaded.
issue local peter_vale.cer both "$insurance/CN=Peter Vale"
quietly openssl ca -config "$work/authority.cnf" -revoke "$work/issued.pem" -crl_reason superseded
quietly openssl ca -config "$work/authority.cnf" -gencrl -out "$work/authority.pem"
quietly openssl crl -in "$work/authority.pem" -outform DER -out "$work/crl/authority.crl"

# What an earlier version of this script made goes; files that somebody added stay.
if [ -f "$stamp" ]; then
    tail -n +2 "$stamp" | while IFS= read -r old; do
        rm -f "$target/$old"
    done
    rm -f "$stamp"
fi
for store in local network crl; do
    mkdir -p "$target/$store"
    for file in "$work/$store"/*; do
        mv "$file" "$target/$store/"
        echo "$store/${file##*/}" >>"$work/stamp"
    done
done
{ echo "$version"; cat "$work/stamp"; } >"$work/stamped"
mv "$work/stamped" "$stamp"

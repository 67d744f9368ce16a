#!/bin/sh
# Makes the encrypted PDFs of this folder from plain.pdf, a page that says "Locked". The user password is "sésame", in the one-byte
# encoding before AES-256 and in UTF-8 with it; the owner password is "master". Needs qpdf.
set -e
cd "$(dirname "$0")"
latin1=$(printf 's\351same')
utf8='sésame'
new() { # file, user password, further options
    qpdf --encrypt "$2" master 256 $3 -- plain.pdf "$1"
}
old() { # file, user password, bits of the key, further options
    qpdf --allow-weak-crypto --password-mode=bytes --encrypt "$2" master "$3" $4 -- plain.pdf "$1"
}

old locked-rc4-40.pdf "$latin1" 40
old locked-rc4-128.pdf "$latin1" 128 --use-aes=n
old locked-aes-128.pdf "$latin1" 128 --use-aes=y
new locked-aes-256.pdf "$utf8"
old no-copying-rc4-128.pdf "" 128 "--use-aes=n --extract=n"
new no-copying-aes-256.pdf "" --extract=n
old locked-and-no-copying-aes-128.pdf "$latin1" 128 "--use-aes=y --extract=n"
new copying-allowed-aes-256.pdf "" --extract=y

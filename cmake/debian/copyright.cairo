
Files: usr/lib/*/dtkhddvd/libcairo.so.2
Copyright: 2002 University of Southern California
 2005-2018 Red Hat, Inc
 Carl Worth, Behdad Esfahbod, Keith Packard, Chris Wilson and many others
License: LGPL-2.1 or MPL-1.1
Comment:
 Built from Debian's source package cairo, version 1.16.0, as it is, with its
 DirectFB back end switched on. The copyright file of Debian's package libcairo2
 names every contributor.

License: LGPL-2.1
 On Debian systems, the text of the GNU Lesser General Public License, version
 2.1, is in /usr/share/common-licenses/LGPL-2.1.

License: MPL-1.1
 On Debian systems, the text of the Mozilla Public License, version 1.1, is in
 /usr/share/common-licenses/MPL-1.1.

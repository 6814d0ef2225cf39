/* A C caller of the failure exit p01abf and of the wrappers: hidden
   character lengths after the last argument, everything by reference. */
#include <stdio.h>
#include <string.h>

#include <zeb.h>

static void call_exit(int ifail, int code, int nrec) {
  char lines[2][80];
  int r;
  memset(lines, ' ', sizeof lines);
  memcpy(lines[0], " ** First message line.", 23);
  memcpy(lines[1], " ** Second message line.", 24);
  printf(" --- p01abf: IFAIL %d, code %d, %d lines\n", ifail, code, nrec);
  r = p01abf_(&ifail, &code, "ZEBTST", &nrec, &lines[0][0], 6, 80);
  printf(" returned %d\n", r);
}

int main(void) {
  double x, y;
  int ifail;
  setvbuf(stdout, NULL, _IOLBF, 0);

  call_exit(-1, 0, 2);  /* code 0: nothing printed, 0 returned */
  call_exit(-1, 5, 0);  /* no message lines, the exit lines as usual */
  call_exit(-13, 3, 2); /* the message lines only */
  call_exit(21, 7, 2);  /* tens digit 2 prints, units digit 1 returns */
  call_exit(2, 7, 2);   /* units digit 2 but no tens digit: silent, returns */

  printf(" --- s14aaf_(170.0) with IFAIL = 0: success\n");
  x = 170.0;
  ifail = 0;
  y = s14aaf_(&x, &ifail);
  printf(" IFAIL %d, finite result: %s\n", ifail, y > 4.26e304 && y < 4.27e304 ? "yes" : "no");
  printf(" --- s14abf_(0.0) with IFAIL = 11\n");
  x = 0.0;
  ifail = 11;
  y = s14abf_(&x, &ifail);
  printf(" IFAIL %d, value is the largest real: %s\n", ifail,
         y == 1.7976931348623157e308 ? "yes" : "no");
  return 0;
}

/* A C caller of ZEB: every argument goes by reference, as to Fortran. The
   gamma function and erfc for a few values, then a failing call with
   IFAIL = -1: the library prints its messages and returns. */
#include <stdio.h>

#include <zeb.h>

int main(void) {
  const double xs[] = {0.5, 1.0, 4.5, 10.0, -1.5};
  int i, ifail;
  double x, y;

  /* The library writes through the Fortran runtime; line buffering keeps
     this program's lines and the library's in order in a pipe or a file. */
  setvbuf(stdout, NULL, _IOLBF, 0);

  printf(" Gamma function, s14aaf_\n");
  for (i = 0; i < 5; ++i) {
    ifail = 0;
    y = s14aaf_(&xs[i], &ifail);
    printf("   gamma(%6.2f) = %23.15e\n", xs[i], y);
  }
  printf("\n Complementary error function, s15adf_\n");
  for (i = 0; i < 5; ++i) {
    ifail = 0;
    y = s15adf_(&xs[i], &ifail);
    printf("   erfc(%6.2f) = %23.15e\n", xs[i], y);
  }
  printf("\n A soft failure: s14aaf_(-3.0) with IFAIL = -1\n");
  x = -3.0;
  ifail = -1;
  y = s14aaf_(&x, &ifail);
  printf("   IFAIL on exit = %d, value returned = %11.4e\n", ifail, y);
  return 0;
}

#include <omp.h>

#include "zeb_w_ib_aux.h"

void w01aatn(int n) {
  if (n >= 1) omp_set_num_threads(n);
}

int w01aaun() { return omp_get_thread_num(); }

bool w01aavn() { return omp_in_parallel() != 0; }

void w01aaxn(int& t) { t = omp_get_thread_num(); }

void w01aayn(int& n) { n = omp_get_num_threads(); }

int w01aazn() {
  int n = 1;
#pragma omp parallel
  {
#pragma omp single
    n = omp_get_num_threads();
  }
  return n;
}

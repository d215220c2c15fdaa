// Nothing: what is compiled with it is the headers.

// pcx_image

// t_stream

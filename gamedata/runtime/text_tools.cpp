// text_tools
